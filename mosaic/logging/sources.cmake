list(APPEND MOSAIC_SOURCES
  logging/AutoProgressBar.cpp
  logging/LogFileFormat.cpp
  logging/LoggedItem.cpp
  logging/Logger.cpp
  logging/LoggerActions.cpp
  logging/LoggerFunctions.cpp
  logging/LogItemField.cpp
  logging/LogLinks.cpp
  logging/ProgInd.cpp
  logging/ProgressTime.cpp
  logging/RenderProgressPanel.cpp
  logging/SavableLogger.cpp
)
