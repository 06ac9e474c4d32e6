list(APPEND GLOBKIT_SOURCES
  image/AspectRatio.cpp
  image/GPUImage.cpp
  image/HostImage.cpp
  image/IconCache.cpp
  image/iPixelGuard.cpp
)
