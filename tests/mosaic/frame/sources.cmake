list(APPEND MOSAIC_TEST_SOURCES
  mosaic/frame/FrameTest.cpp
)
