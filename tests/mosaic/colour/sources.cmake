list(APPEND MOSAIC_TEST_SOURCES
  mosaic/colour/ColourAdaptorsTest.cpp
  mosaic/colour/HSColourWheelTest.cpp
)
