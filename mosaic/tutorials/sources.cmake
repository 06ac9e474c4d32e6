list(APPEND MOSAIC_SOURCES
  tutorials/Tutorial.cpp
  tutorials/TutorialsManager.cpp
)
