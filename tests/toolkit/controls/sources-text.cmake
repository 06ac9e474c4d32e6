list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/controls/TextBoxTest.cpp
  toolkit/controls/NumericTextBoxTest.cpp
  toolkit/controls/MultiLineTextBoxTest.cpp
  toolkit/controls/TitleTextBoxTest.cpp
)
