#include "MessageQueue.h"

#include <chrono>

void MessageQueue::post(Item item) {
    {
        std::lock_guard<std::mutex> g(lock_);
        items_.push_back(std::move(item));
    }
    arrived_.notify_one();
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

void MessageQueue::waitFor(int milliseconds) {
    std::unique_lock<std::mutex> g(lock_);
    arrived_.wait_for(g, std::chrono::milliseconds(milliseconds), [this] { return !items_.empty() || woken_; });
    woken_ = false;
}

void MessageQueue::wake() {
    {
        std::lock_guard<std::mutex> g(lock_);
        woken_ = true;
    }
    arrived_.notify_one();
}
