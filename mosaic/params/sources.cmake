list(APPEND MOSAIC_SOURCES
  params/AttribValuePair.cpp
  params/Param.cpp
  params/ParamBase.cpp
  params/SliderParamHost.cpp
)
