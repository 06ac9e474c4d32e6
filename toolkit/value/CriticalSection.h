#pragma once

#include <mutex>

/// A lock that the thread holding it may take again: a notifier's callbacks may
/// register or issue on the same notifier while it delivers.
class CriticalSection {
public:
    void enter() { m_.lock(); }
    void leave() { m_.unlock(); }
    void lock() { enter(); }
    void unlock() { leave(); }

private:
    std::recursive_mutex m_;
};
