list(APPEND MOSAIC_TEST_SOURCES
  mosaic/colour/ColourAdaptorsTest.cpp
  mosaic/colour/ColourPickerTest.cpp
  mosaic/colour/EyeDropperTest.cpp
  mosaic/colour/HSColourWheelTest.cpp
)
