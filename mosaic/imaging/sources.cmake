list(APPEND MOSAIC_SOURCES
  imaging/AngleIndicatorWidget.cpp
  imaging/CornerHighlightWidget.cpp
  imaging/RibbonWidget.cpp
  imaging/TrackButton.cpp
)
