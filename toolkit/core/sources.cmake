list(APPEND GLOBKIT_SOURCES
  core/Assert.cpp
  core/Colour.cpp
  core/ColourData.cpp
  core/Event.cpp
  core/IdStamp.cpp
  core/KeyCodes.cpp
  core/Palette.cpp
  core/splitIf.cpp
  core/Utf8.cpp
  core/WStringFromAscii.cpp
  core/WStringFromFloat.cpp
  core/WStringFromInteger.cpp
  core/FloatFromWString.cpp
  core/StringFromFloat.cpp
  core/asDouble.cpp
  core/getDegreesString.cpp
)
