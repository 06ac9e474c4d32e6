list(APPEND MOSAIC_TEST_SOURCES
  mosaic/logging/AutoProgressBarTest.cpp
  mosaic/logging/LogFileFormatTest.cpp
  mosaic/logging/LoggerFunctionsTest.cpp
  mosaic/logging/LoggerRowsTest.cpp
  mosaic/logging/LoggerThreadsTest.cpp
  mosaic/logging/LogItemFieldTest.cpp
  mosaic/logging/ProgIndTest.cpp
  mosaic/logging/RenderProgressPanelTest.cpp
  mosaic/logging/SavableLoggerTest.cpp
)
set_source_files_properties(mosaic/logging/LogFileFormatTest.cpp PROPERTIES COMPILE_DEFINITIONS
  "MOSAIC_TEST_DATA=\"${CMAKE_CURRENT_SOURCE_DIR}/data\"")
