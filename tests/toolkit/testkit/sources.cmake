list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/testkit/TestKitTest.cpp
)
