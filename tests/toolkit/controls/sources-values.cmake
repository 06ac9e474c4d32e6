list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/controls/GaugeTest.cpp
  toolkit/controls/SliderTest.cpp
)
