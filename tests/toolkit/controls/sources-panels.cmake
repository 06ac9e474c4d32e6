list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/controls/ColRectTest.cpp
  toolkit/controls/MessageTest.cpp
  toolkit/controls/SplitterTest.cpp
  toolkit/controls/StatusMessageTest.cpp
  toolkit/controls/TabbedDialogueTest.cpp
  toolkit/controls/TitleGlobTest.cpp
  toolkit/controls/TooltipTest.cpp
  toolkit/controls/WidgetGroupTest.cpp
)
