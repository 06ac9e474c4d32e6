list(APPEND MOSAIC_SOURCES
  panels/calcDropDownPos.cpp
  panels/PageIndexTestPanel.cpp
  panels/PageIndexWidget.cpp
  panels/SpaceDivider.cpp
  panels/SplitTabsWidget.cpp
  panels/WizardPanel.cpp
  panels/WizardStagePanel.cpp
)
