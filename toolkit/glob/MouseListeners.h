#pragma once

#include "core/Event.h"
#include "core/Guard.h"
#include "core/NotifyMsg.h"
#include "core/Ptr.h"
#include "core/iCallbackBase.h"

#include <cstddef>

/// Those who hear of every mouse event on the screen, whichever glob takes it and
/// even when an interceptor swallows it. Each listener is told with a NotifyMsg
/// named mouseMsg whose data is a WrappedData<Event> in screen coordinates, after
/// the event was routed. A listener stays until its guard is released. All on the
/// user-interface thread.
class MouseListeners {
public:
    static constexpr const char* mouseMsg = "mouse";
    static Zn::Ptr<Zn::Guard> add(const Zn::Ptr<iCallbackBase<int, NotifyMsg>>& listener);
    static void notify(const Event& e);
    static std::size_t count();
};

namespace Glib {
// A guard of a new listener of every mouse event; null for a null callback.
inline Zn::Ptr<Zn::Guard> addMouseListener(const Zn::Ptr<iCallbackBase<int, NotifyMsg>>& listener) { return MouseListeners::add(listener); }
} // namespace Glib
