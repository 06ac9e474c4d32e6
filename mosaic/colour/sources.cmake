list(APPEND MOSAIC_SOURCES
  colour/AlphaTextAdaptor.cpp
  colour/ColourComponentAdaptor.cpp
  colour/ComponentTextBox.cpp
  colour/HexColourAdaptor.cpp
  colour/HSColourWheel.cpp
  colour/LuminanceAdaptor.cpp
  colour/RGBComponentAdaptor.cpp
)
