list(APPEND GLOBKIT_SOURCES
  controls/TextBoxBase.cpp
  controls/TextBox.cpp
  controls/NumericTextBox.cpp
  controls/MultiLineTextBox.cpp
  controls/LinkAwareMultiLineTextBox.cpp
  controls/TitleTextBox.cpp
)
