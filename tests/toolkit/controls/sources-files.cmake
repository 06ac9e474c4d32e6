list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/controls/FileBrowserTest.cpp
)
