#pragma once

#include "core/WidgetCallback.h"

class EventHandler;
class Glob;

// How a control reports: through the callback when it has one, otherwise by
// posting the callback's message (if any) to the control's owner. The callback
// may delete the control and with it the WidgetCallback it came from, so it is
// taken by value. Returns false when `sender` died meanwhile: the caller must
// then not touch it.
bool fireCallback(Glob* sender, WidgetCallback callback);
// The same with the message posted to `recipient` instead; none when it is null.
bool fireCallback(Glob* sender, WidgetCallback callback, EventHandler* recipient);
