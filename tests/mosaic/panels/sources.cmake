list(APPEND MOSAIC_TEST_SOURCES
  mosaic/panels/DropDownButtonTest.cpp
)
