list(APPEND MOSAIC_SOURCES
  frame/FactoryGlobWrapper.cpp
)
