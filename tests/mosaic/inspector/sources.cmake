list(APPEND MOSAIC_TEST_SOURCES
  mosaic/inspector/GlobInspectorTest.cpp
)
