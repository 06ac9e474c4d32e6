list(APPEND MOSAIC_TEST_SOURCES
  mosaic/entry/IPAddressEntryBoxTest.cpp
  mosaic/entry/DateCanvasTest.cpp
  mosaic/entry/FormTest.cpp
  mosaic/entry/SignInTest.cpp
)
