list(APPEND GLOBKIT_SOURCES
  draw/iRootVideoWindow.cpp
  draw/VideoWindow.cpp
)
