list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/value/DataConvertTest.cpp
  toolkit/value/NotifierTest.cpp
  toolkit/value/UIThreadCallbackTest.cpp
  toolkit/value/ValAdaptorTest.cpp
  toolkit/value/ValServerTest.cpp
  toolkit/value/ValServerThreadTest.cpp
)
