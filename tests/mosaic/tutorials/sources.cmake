list(APPEND MOSAIC_TEST_SOURCES
  mosaic/tutorials/TutorialsManagerTest.cpp
  mosaic/tutorials/TutorialTest.cpp
)
