list(APPEND GLOBKIT_SOURCES
  glob/UpdateDeferrer.cpp
  glob/SuspendRefreshOffToggle.cpp
  glob/glib_getPosForWindow.cpp
)
