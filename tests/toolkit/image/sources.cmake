list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/image/PreviewImageTest.cpp
)
