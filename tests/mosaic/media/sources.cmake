list(APPEND MOSAIC_TEST_SOURCES
  mosaic/media/FormatButtonsTest.cpp
  mosaic/media/CompressionButtonTest.cpp
  mosaic/media/DiskButtonTest.cpp
  mosaic/media/StoredVideoFormatTest.cpp
  mosaic/media/UIHWDeviceManagerTest.cpp
)
