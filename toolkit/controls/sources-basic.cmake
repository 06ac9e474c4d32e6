list(APPEND GLOBKIT_SOURCES
  controls/Button.cpp
  controls/Checkbox.cpp
  controls/Clickable.cpp
  controls/CycleButton.cpp
  controls/PushButton.cpp
  controls/TextLabel.cpp
)
list(APPEND GLOBKIT_SOURCES
  controls/ImageButton.cpp
  controls/ImageView.cpp
)
