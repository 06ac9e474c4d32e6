list(APPEND GLOBKIT_SOURCES
  controls/ColRect.cpp
  controls/Message.cpp
  controls/Splitter.cpp
  controls/StatusMessage.cpp
  controls/TabbedDialogue.cpp
  controls/TipWindowBase.cpp
  controls/TitleButton.cpp
  controls/TitleGlob.cpp
  controls/Warn.cpp
  controls/WidgetGroup.cpp
)
