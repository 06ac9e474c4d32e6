list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/platform/JsonTest.cpp
  toolkit/platform/PlatformTest.cpp
)
