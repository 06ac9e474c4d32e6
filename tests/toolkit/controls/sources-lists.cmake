list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/controls/ScrollBarTest.cpp
  toolkit/controls/ScrollListTest.cpp
  toolkit/controls/TreeViewTest.cpp
  toolkit/controls/VerticalScrollingBaseTest.cpp
  toolkit/controls/TableWidgetTest.cpp
)
