list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/tasks/HyperLinkTest.cpp
  toolkit/tasks/LoggerBaseTest.cpp
  toolkit/tasks/ProgressReportClientTest.cpp
  toolkit/tasks/TaskLogTest.cpp
)
