list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/backend/CursorPictureTest.cpp
  toolkit/backend/SdlBackendTest.cpp
  toolkit/backend/XdndDragSourceTest.cpp
)
