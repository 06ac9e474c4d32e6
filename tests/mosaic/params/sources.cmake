list(APPEND MOSAIC_TEST_SOURCES
  mosaic/params/ColourRowTest.cpp
  mosaic/params/ControlsRoadTest.cpp
  mosaic/params/ParamConstraintsTest.cpp
  mosaic/params/ParamsStateTest.cpp
  mosaic/params/ParamTest.cpp
  mosaic/params/TitledRowsTest.cpp
  mosaic/params/UIBuilderJSONTest.cpp
  mosaic/params/UIBuilderParamsTest.cpp
  mosaic/params/UIBuilderTest.cpp
  mosaic/params/UIBuilderTestPanelTest.cpp
)
