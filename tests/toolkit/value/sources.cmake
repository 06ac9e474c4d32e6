list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/value/NotifierTest.cpp
  toolkit/value/UIThreadCallbackTest.cpp
)
