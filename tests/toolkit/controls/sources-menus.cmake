list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/controls/ContextMenuTest.cpp
  toolkit/controls/DropDownMenuButtonTest.cpp
  toolkit/controls/MenuItemTest.cpp
  toolkit/controls/MenuTest.cpp
  toolkit/controls/TitleMenuButtonTest.cpp
)
