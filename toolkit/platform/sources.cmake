list(APPEND GLOBKIT_SOURCES
  platform/configb.cpp
  platform/ResourceStrings.cpp
)
