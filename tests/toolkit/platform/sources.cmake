list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/platform/ConfigbFileTest.cpp
  toolkit/platform/FilespecUtilsTest.cpp
  toolkit/platform/IPAddressTest.cpp
  toolkit/platform/JsonTest.cpp
  toolkit/platform/PlatformTest.cpp
  toolkit/platform/ShellTest.cpp
)
