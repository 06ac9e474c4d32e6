list(APPEND MOSAIC_SOURCES
  params/ActiveConstraint.cpp
  params/AttribValuePair.cpp
  params/ChangeBroadcaster.cpp
  params/HostPanel.cpp
  params/Param.cpp
  params/ParamBase.cpp
  params/ParamBoundConstraint.cpp
  params/SliderParamHost.cpp
  params/TitledFileChooserButton.cpp
  params/UIBuilder.cpp
  params/UIBuilderExample.cpp
  params/UIBuilderJSON.cpp
  params/UIBuilderParams.cpp
  params/UIBuilderRows.cpp
  params/UIBuilderTestPanel.cpp
  params/VisibilityConstraint.cpp
)
