list(APPEND MOSAIC_SOURCES
  logging/ProgressTime.cpp
  logging/ProgInd.cpp
  logging/AutoProgressBar.cpp
  logging/RenderProgressPanel.cpp
)
