#pragma once

#include "core/WidgetCallback.h"

class Glob;

// How a control reports: through the callback when it has one, otherwise by
// sending the callback's message (if any) to the control's owner.
void fireCallback(Glob* sender, const WidgetCallback& callback);
