list(APPEND MOSAIC_SOURCES
  colour/AlphaTextAdaptor.cpp
  colour/ColEyeDropBase.cpp
  colour/ColourPicker.cpp
  colour/colourEyeDropper.cpp
  colour/CursorCapturer.cpp
  colour/ColourComponentAdaptor.cpp
  colour/ComponentTextBox.cpp
  colour/DropDownColourPickerButton.cpp
  colour/HexColourAdaptor.cpp
  colour/HSColourWheel.cpp
  colour/LuminanceAdaptor.cpp
  colour/MagnifyTool.cpp
  colour/RGBComponentAdaptor.cpp
)
