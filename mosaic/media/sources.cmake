list(APPEND MOSAIC_SOURCES
  media/CompressionFormatButton.cpp
  media/CompressionSettingsPanel.cpp
  media/DiskButton.cpp
  media/FileFormatButton.cpp
  media/FrameRateButton.cpp
  media/ShotVideoMetadataButton.cpp
  media/StoredVideoFormat.cpp
  media/TitledDiskButton.cpp
  media/TitledFileFormatButton.cpp
  media/UIHWDeviceManager.cpp
)
