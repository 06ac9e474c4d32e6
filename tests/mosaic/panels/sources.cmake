list(APPEND MOSAIC_TEST_SOURCES
  mosaic/panels/DropDownButtonTest.cpp
  mosaic/panels/PageIndexWidgetTest.cpp
  mosaic/panels/SpaceDividerTest.cpp
  mosaic/panels/SplitTabsWidgetTest.cpp
  mosaic/panels/WizardPanelTest.cpp
)
