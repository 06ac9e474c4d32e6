#pragma once

#include "core/ColourData.h"
#include "value/ValWidget.h"

/// The widget side of everything that shows a whole colour (the wheel, the picker).
class ColourDataValWidget : public ValWidget<ColourData> {};
