list(APPEND MOSAIC_SOURCES
  tutorials/Tutorial.cpp
)
