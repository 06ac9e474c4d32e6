list(APPEND MOSAIC_SOURCES
  params/ActiveConstraint.cpp
  params/AttribValuePair.cpp
  params/ChangeBroadcaster.cpp
  params/Param.cpp
  params/ParamBase.cpp
  params/SliderParamHost.cpp
  params/ParamBoundConstraint.cpp
  params/TitledFileChooserButton.cpp
  params/UIBuilder.cpp
  params/UIBuilderJSON.cpp
  params/UIBuilderRows.cpp
  params/UIBuilderParams.cpp
  params/UIBuilderExample.cpp
  params/HostPanel.cpp
  params/UIBuilderTestPanel.cpp
  params/VisibilityConstraint.cpp
)
