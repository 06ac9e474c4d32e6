list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/glob/CanvasStackTest.cpp
)
