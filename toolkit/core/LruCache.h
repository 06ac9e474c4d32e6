#pragma once

#include <cstddef>
#include <list>
#include <string>
#include <unordered_map>
#include <utility>

/// A map of at most `capacity` entries that forgets the least recently used one to
/// make room. Keys are strings: callers spell out whatever fixes a value.
template <class Value>
class LruCache {
public:
    explicit LruCache(std::size_t capacity) : capacity_(capacity ? capacity : 1) {}

    // The value of `key`, now the most recently used, or null.
    Value* find(const std::string& key) {
        auto found = index_.find(key);
        if (found == index_.end()) return nullptr;
        order_.splice(order_.begin(), order_, found->second);
        return &found->second->second;
    }

    // Stores `value` under a key that find() did not know, forgetting the oldest
    // entry when full. The reference stays valid until that entry is forgotten.
    Value& insert(std::string key, Value value) {
        if (order_.size() >= capacity_) {
            index_.erase(order_.back().first);
            order_.pop_back();
        }
        order_.emplace_front(std::move(key), std::move(value));
        index_[order_.front().first] = order_.begin();
        return order_.front().second;
    }

    std::size_t size() const { return order_.size(); }

private:
    using Order = std::list<std::pair<std::string, Value>>;
    std::size_t capacity_;
    Order order_; // most recently used first
    std::unordered_map<std::string, typename Order::iterator> index_;
};
