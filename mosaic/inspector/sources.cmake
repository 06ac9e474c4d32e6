list(APPEND MOSAIC_SOURCES
  inspector/GlobInspector.cpp
  inspector/GlobTreePanel.cpp
  inspector/InfoWidget.cpp
  inspector/SelectionRectangle.cpp
)
