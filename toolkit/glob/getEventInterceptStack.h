#pragma once

#include "core/Event.h"
#include "core/FilterStack.h"

// The toolkit's interceptors of input: the dispatcher offers every mouse and key
// event to them, newest first, before it routes the event to any glob.
FilterStack<Event>& getEventInterceptStack();
