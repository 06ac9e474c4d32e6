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
  core/WStringFromInteger.cpp
)
