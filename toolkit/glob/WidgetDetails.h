#pragma once

#include "WidgetPosition.h"
#include "WidgetSurround.h"

/// The toolkit's record of one child in its parent.
struct WidgetDetails {
    Glob* child = nullptr;
    WidgetPosition position;
    WidgetSurround surround;
    // The sibling a relative position hangs from, resolved when the child was added.
    Glob* sibling = nullptr;
};
