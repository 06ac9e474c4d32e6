list(APPEND GLOBKIT_SOURCES
  glob/CanvasStack.cpp
  glob/FileDrag.cpp
)
