#include "MouseListeners.h"

#include "core/WrappedData.h"

#include <map>
#include <vector>

namespace {
std::map<unsigned long long, Zn::Ptr<iCallbackBase<int, NotifyMsg>>>& listeners() {
    static std::map<unsigned long long, Zn::Ptr<iCallbackBase<int, NotifyMsg>>> all;
    return all;
}
} // namespace

Zn::Ptr<Zn::Guard> MouseListeners::add(const Zn::Ptr<iCallbackBase<int, NotifyMsg>>& listener) {
    if (!listener) return {};
    static unsigned long long next = 0;
    const unsigned long long key = ++next;
    listeners()[key] = listener;
    return Zn::Ptr<Zn::Guard>(new Zn::Guard([key] { listeners().erase(key); }));
}

void MouseListeners::notify(const Event& e) {
    if (!mouse_event(e) || listeners().empty()) return;
    const NotifyMsg msg(mouseMsg, Zn::Ptr<iObject>(new WrappedData<Event>(e)));
    // A copy: a listener may add listeners or release its own guard while it is told.
    std::vector<std::pair<unsigned long long, Zn::Ptr<iCallbackBase<int, NotifyMsg>>>> now(listeners().begin(), listeners().end());
    for (const auto& [key, listener] : now)
        if (listeners().count(key)) listener->execute(msg);
}

std::size_t MouseListeners::count() { return listeners().size(); }
