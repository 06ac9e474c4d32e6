#pragma once

#include "GlobHandle.h"
#include "core/Event.h"

#include <deque>
#include <mutex>

/// Messages on their way to the user-interface thread. Any thread may post; only
/// the user-interface thread takes. Each message holds its target by a handle, so a
/// target that dies before delivery simply misses it.
class MessageQueue {
public:
    /// A message and its target, held by a handle taken when it was posted.
    struct Item {
        Event event;
        GlobHandle<EventHandler> target;
    };

    void post(Item item);
    // Moves every waiting message into `out` (appending); returns how many.
    std::size_t takeAll(std::deque<Item>& out);
    bool empty() const;
    std::size_t size() const;

private:
    mutable std::mutex lock_;
    std::deque<Item> items_;
};
