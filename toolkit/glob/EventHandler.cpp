#include "EventHandler.h"

#include <mutex>
#include <unordered_map>

namespace {

// Live handlers by address. Handlers may be made and destroyed on any thread
// (UIThreadCallback is one), so the registry has its own lock.
struct Registry {
    std::mutex lock;
    std::unordered_map<const EventHandler*, IdStamp> live;
};

Registry& registry() {
    static Registry* r = new Registry; // never destroyed: handlers may die during static destruction
    return *r;
}

} // namespace

EventHandler::EventHandler() : stamp_(IdStamp::make()) {
    Registry& r = registry();
    std::lock_guard<std::mutex> g(r.lock);
    r.live[this] = stamp_;
}

EventHandler::~EventHandler() {
    Registry& r = registry();
    std::lock_guard<std::mutex> g(r.lock);
    r.live.erase(this);
}

bool EventHandler::valid(const EventHandler* handler, const IdStamp& stamp) {
    if (!handler) return false;
    Registry& r = registry();
    std::lock_guard<std::mutex> g(r.lock);
    auto it = r.live.find(handler);
    return it != r.live.end() && it->second == stamp;
}

bool EventHandler::isLive(const EventHandler* handler) {
    if (!handler) return false;
    Registry& r = registry();
    std::lock_guard<std::mutex> g(r.lock);
    return r.live.count(handler) != 0;
}

std::size_t EventHandler::liveCount() {
    Registry& r = registry();
    std::lock_guard<std::mutex> g(r.lock);
    return r.live.size();
}
