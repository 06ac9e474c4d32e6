list(APPEND GLOBKIT_SOURCES
  value/Notifier.cpp
)
