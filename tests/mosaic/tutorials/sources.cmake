list(APPEND MOSAIC_TEST_SOURCES
  mosaic/tutorials/TutorialTest.cpp
  mosaic/tutorials/TutorialsManagerTest.cpp
)
