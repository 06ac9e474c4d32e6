list(APPEND MOSAIC_TEST_SOURCES
  mosaic/logging/ProgIndTest.cpp
  mosaic/logging/AutoProgressBarTest.cpp
  mosaic/logging/RenderProgressPanelTest.cpp
)
