#pragma once

#include "core/Box.h"
#include "core/Ptr.h"
#include "image/iImage.h"

// A picture of an area of the composed screen (composed first if it is out of
// date), as an iHostImage of the area's size: what lies off the screen is
// transparent black. Null for an empty area. User-interface thread only.
Zn::Ptr<iImage> glib_getScreenRect(const BoxInt& area);
