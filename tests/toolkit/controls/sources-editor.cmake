list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/controls/CodeEditorTest.cpp
)
