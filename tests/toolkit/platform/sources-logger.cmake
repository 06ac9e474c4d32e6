list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/platform/ShellTest.cpp
)
