list(APPEND MOSAIC_SOURCES
  panels/calcDropDownPos.cpp
)
