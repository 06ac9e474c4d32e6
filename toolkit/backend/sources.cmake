list(APPEND GLOBKIT_SOURCES
  backend/CursorPicture.cpp
  backend/SdlBackend.cpp
  backend/XdndDragSource.cpp
)
