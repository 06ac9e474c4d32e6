list(APPEND GLOBKIT_SOURCES
  glob/fireCallback.cpp
  glob/Drawable.cpp
  glob/EventHandler.cpp
  glob/Glob.cpp
  glob/GlobManager.cpp
  glob/InputDispatcher.cpp
  glob/MessageQueue.cpp
  glob/Messaging.cpp
  glob/StandardPanel.cpp
  glob/TabOrderManager.cpp
  glob/UifStd.cpp
  glob/WidgetPosition.cpp
)
