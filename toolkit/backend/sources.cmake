list(APPEND GLOBKIT_SOURCES
  backend/SdlBackend.cpp
  backend/XdndDragSource.cpp
)
