list(APPEND GLOBKIT_SOURCES
  controls/CodeEditor.cpp
)
