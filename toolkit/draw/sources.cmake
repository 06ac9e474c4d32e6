list(APPEND GLOBKIT_SOURCES
  draw/Canvas.cpp
  draw/CanvasRenderer.cpp
  draw/FontDesc.cpp
  draw/Screen.cpp
  draw/StateSaver.cpp
)
