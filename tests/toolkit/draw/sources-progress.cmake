list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/draw/VideoWindowTest.cpp
)
