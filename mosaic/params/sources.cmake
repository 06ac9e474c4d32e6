list(APPEND MOSAIC_SOURCES
  params/ActiveConstraint.cpp
  params/AttribValuePair.cpp
  params/ChangeBroadcaster.cpp
  params/Param.cpp
  params/ParamBase.cpp
  params/SliderParamHost.cpp
  params/ParamBoundConstraint.cpp
  params/UIBuilder.cpp
  params/UIBuilderParams.cpp
  params/VisibilityConstraint.cpp
)
