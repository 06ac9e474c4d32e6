list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/media/MediaValuesTest.cpp
  toolkit/media/CompressionTest.cpp
  toolkit/media/DeviceLayerTest.cpp
  toolkit/media/DiskManagerTest.cpp
  toolkit/media/DiskMountTest.cpp
)
