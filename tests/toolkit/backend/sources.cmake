list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/backend/SdlBackendTest.cpp
  toolkit/backend/XdndDragSourceTest.cpp
)
