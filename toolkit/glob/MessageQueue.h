#pragma once

#include "core/Event.h"

#include <deque>
#include <mutex>

class EventHandler;

/// Messages on their way to the user-interface thread. Any thread may post; only
/// the user-interface thread takes. Each message remembers its target's stamp, so a
/// target that dies before delivery simply misses it.
class MessageQueue {
public:
    /// A message and its target, with the target's stamp taken when it was posted.
    struct Item {
        Event event;
        EventHandler* target = nullptr;
        IdStamp stamp;
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
