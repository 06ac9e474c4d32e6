list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/glob/ProgressSupportTest.cpp
)
