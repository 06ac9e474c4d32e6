list(APPEND GLOBKIT_SOURCES
  platform/revealFilesInOS.cpp
)
