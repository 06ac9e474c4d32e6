list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/core/ColourTest.cpp
  toolkit/core/FilterStackTest.cpp
  toolkit/core/NumberTextTest.cpp
  toolkit/core/LightweightStringTest.cpp
  toolkit/core/PtrTest.cpp
  toolkit/core/StringHelpersTest.cpp
  toolkit/core/Utf8Test.cpp
  toolkit/core/ValueTypesTest.cpp
)
