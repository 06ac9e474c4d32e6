list(APPEND GLOBKIT_SOURCES
  image/HostImage.cpp
  image/IconCache.cpp
)
