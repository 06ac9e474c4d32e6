list(APPEND GLOBKIT_SOURCES
  value/DataConvert.cpp
  value/DLList.cpp
  value/Notifier.cpp
  value/NotifierBase.cpp
  value/ValServer.cpp
)
