list(APPEND GLOBKIT_SOURCES
  controls/DropDownMenuButton.cpp
  controls/Menu.cpp
  controls/MenuGlob.cpp
  controls/MenuItem.cpp
  controls/MenuItemIndex.cpp
  controls/TitleMenuButton.cpp
)
