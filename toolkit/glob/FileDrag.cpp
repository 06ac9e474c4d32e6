#include "FileDrag.h"

#include <mutex>

namespace {
std::mutex handlerLock;
Glib::FileDragHandler& handler() {
    static Glib::FileDragHandler h;
    return h;
}
} // namespace

bool Glib::dragFilesToOS(const std::vector<LightweightString<wchar_t>>& paths) {
    FileDragHandler h;
    {
        std::lock_guard<std::mutex> g(handlerLock);
        h = handler();
    }
    return !paths.empty() && h && h(paths);
}

void Glib::setFileDragHandler(FileDragHandler h) {
    std::lock_guard<std::mutex> g(handlerLock);
    handler() = std::move(h);
}
