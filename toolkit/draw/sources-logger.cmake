list(APPEND GLOBKIT_SOURCES
  draw/TextStyle.cpp
)
