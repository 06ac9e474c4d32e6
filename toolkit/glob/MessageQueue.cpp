#include "MessageQueue.h"

void MessageQueue::post(Item item) {
    std::lock_guard<std::mutex> g(lock_);
    items_.push_back(std::move(item));
}

std::size_t MessageQueue::takeAll(std::deque<Item>& out) {
    std::lock_guard<std::mutex> g(lock_);
    std::size_t n = items_.size();
    if (out.empty())
        out.swap(items_);
    else
        for (Item& i : items_) out.push_back(std::move(i));
    items_.clear();
    return n;
}

bool MessageQueue::empty() const {
    std::lock_guard<std::mutex> g(lock_);
    return items_.empty();
}

std::size_t MessageQueue::size() const {
    std::lock_guard<std::mutex> g(lock_);
    return items_.size();
}
