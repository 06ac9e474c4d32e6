list(APPEND MOSAIC_SOURCES
  logging/LogFileFormat.cpp
  logging/LogItemField.cpp
  logging/LogLinks.cpp
  logging/LoggedItem.cpp
  logging/Logger.cpp
  logging/LoggerActions.cpp
  logging/LoggerFunctions.cpp
  logging/SavableLogger.cpp
)
