list(APPEND GLOBKIT_SOURCES
  tasks/HyperLink.cpp
  tasks/LoggerBase.cpp
  tasks/ProgressReportClient.cpp
  tasks/TaskLog.cpp
)
