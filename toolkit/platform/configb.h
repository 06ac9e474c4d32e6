#pragma once

#include "ConfigEntryT.h"
#include "Dirtiable.h"

#include <utility>
#include <vector>

/// A flat store of string-keyed entries, in the order they were first set.
/// Setting a key tells the owner, if any, that it has changed.
class configb {
public:
    explicit configb(Dirtiable* owner = nullptr) : owner_(owner) {}
    configb(const configb& o) : entries_(o.entries_) {}
    // Copies the entries; the owner stays this store's own.
    configb& operator=(const configb& o);

    void set(const LightweightString<char>& key, const ConfigEntryT& entry);
    void set(const char* key, const LightweightString<char>& value);
    // 0 when the key was found, and then `entry` holds it; -1 otherwise.
    int in(const LightweightString<char>& key, ConfigEntryT& entry) const;
    // The value of the key, or `fallback` when there is none.
    LightweightString<char> get(const LightweightString<char>& key, const LightweightString<char>& fallback = {}) const;
    bool has(const LightweightString<char>& key) const;
    bool remove(const LightweightString<char>& key);
    void clear();

    std::size_t size() const { return entries_.size(); }
    bool empty() const { return entries_.empty(); }
    const std::vector<std::pair<LightweightString<char>, ConfigEntryT>>& entries() const { return entries_; }

private:
    const ConfigEntryT* lookup(const LightweightString<char>& key) const;
    void touched();

    std::vector<std::pair<LightweightString<char>, ConfigEntryT>> entries_;
    Dirtiable* owner_ = nullptr;
};
