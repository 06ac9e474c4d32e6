#include "configb.h"

configb& configb::operator=(const configb& o) {
    if (this != &o) {
        entries_ = o.entries_;
        touched();
    }
    return *this;
}

const ConfigEntryT* configb::lookup(const LightweightString<char>& key) const {
    for (const auto& [k, e] : entries_)
        if (k == key) return &e;
    return nullptr;
}

void configb::set(const LightweightString<char>& key, const ConfigEntryT& entry) {
    if (auto* e = const_cast<ConfigEntryT*>(lookup(key)))
        *e = entry;
    else
        entries_.emplace_back(key, entry);
    touched();
}

void configb::set(const char* key, const LightweightString<char>& value) { set(LightweightString<char>(key), ConfigEntryT("string", value)); }

int configb::in(const LightweightString<char>& key, ConfigEntryT& entry) const {
    const ConfigEntryT* e = lookup(key);
    if (!e) return -1;
    entry = *e;
    return 0;
}

LightweightString<char> configb::get(const LightweightString<char>& key, const LightweightString<char>& fallback) const {
    const ConfigEntryT* e = lookup(key);
    return e ? e->value : fallback;
}

bool configb::has(const LightweightString<char>& key) const { return lookup(key) != nullptr; }

bool configb::remove(const LightweightString<char>& key) {
    for (auto it = entries_.begin(); it != entries_.end(); ++it) {
        if (it->first == key) {
            entries_.erase(it);
            touched();
            return true;
        }
    }
    return false;
}

void configb::clear() {
    if (entries_.empty()) return;
    entries_.clear();
    touched();
}

void configb::touched() {
    if (owner_) owner_->makeDirty();
}
