#pragma once

#include "UIBuilder.h"

// The example panel of the "UIBuilderTest2" command: two "Bool param", three
// "Double param", an "Int param", a "Choice param", a "Text param" and a "Reset"
// action, with an activity, an order and a visibility dependency among them.
UIBuilder::ParamList makeUIBuilderTest2Params();
