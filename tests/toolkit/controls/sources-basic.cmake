list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/controls/ButtonTest.cpp
  toolkit/controls/CallbackDeletesControlTest.cpp
  toolkit/controls/CheckboxTest.cpp
  toolkit/controls/CycleButtonTest.cpp
  toolkit/controls/TextLabelTest.cpp
)
list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/controls/ImageButtonTest.cpp
)
