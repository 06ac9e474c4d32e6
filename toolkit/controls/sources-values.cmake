list(APPEND GLOBKIT_SOURCES
  controls/Gauge.cpp
  controls/Slider.cpp
)
