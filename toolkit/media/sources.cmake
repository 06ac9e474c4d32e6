list(APPEND GLOBKIT_SOURCES
  media/Compression.cpp
  media/CompressionFormat.cpp
  media/CompressionTable.cpp
  media/DigitalVideoFormats.cpp
  media/FFmpegWriters.cpp
  media/FileTypeTable.cpp
  media/FileWriterInfo.cpp
  media/Format.cpp
  media/FormatUID.cpp
  media/FrameRate.cpp
  media/ShotVideoMetadata.cpp
  media/VideoCompressionInfo.cpp
  media/ZnExport.cpp
)
