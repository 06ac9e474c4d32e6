list(APPEND GLOBKIT_SOURCES
  glob/CanvasStack.cpp
  glob/Drawable.cpp
  glob/destroyAfterCall.cpp
  glob/EventHandler.cpp
  glob/FileDrag.cpp
  glob/fireCallback.cpp
  glob/glib_getPosForWindow.cpp
  glob/Glob.cpp
  glob/GlobManager.cpp
  glob/InputDispatcher.cpp
  glob/MessageQueue.cpp
  glob/Messaging.cpp
  glob/SuspendRefreshOffToggle.cpp
  glob/TabOrderManager.cpp
  glob/UpdateDeferrer.cpp
  glob/WidgetPosition.cpp
)
