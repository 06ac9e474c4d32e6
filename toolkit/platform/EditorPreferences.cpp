#include "EditorPreferences.h"

#include "Configuration.h"
#include "TextFile.h"
#include "core/Utf8.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

EditorPreferences::EditorPreferences(const LightweightString<char>& folder) : folder_(folder) { load(); }

LightweightString<char> EditorPreferences::filePath() const { return folder_ + "/preferences.json"; }

void EditorPreferences::reload() {
    const std::lock_guard<std::mutex> g(lock_);
    values_ = nlohmann::json::object();
    load();
}

void EditorPreferences::load() {
    std::ifstream in(filePath().c_str(), std::ios::binary);
    if (!in) return;
    std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    in.close();
    nlohmann::json doc = nlohmann::json::parse(text, nullptr, false);
    if (!doc.is_discarded() && doc.is_object()) {
        values_ = std::move(doc);
        return;
    }
    // Keep what was there for the user to look at, and start again from the defaults.
    std::rename(filePath().c_str(), (filePath() + ".corrupt").c_str());
}

const nlohmann::json* EditorPreferences::find(const LightweightString<char>& key) const {
    auto it = values_.find(key.str());
    return it == values_.end() ? nullptr : &*it;
}

int EditorPreferences::getPreference(const LightweightString<char>& key, int fallback) const {
    std::lock_guard<std::mutex> g(lock_);
    const nlohmann::json* v = find(key);
    return v && v->is_number_integer() ? v->get<int>() : fallback;
}

bool EditorPreferences::getPreference(const LightweightString<char>& key, bool fallback) const {
    std::lock_guard<std::mutex> g(lock_);
    const nlohmann::json* v = find(key);
    return v && v->is_boolean() ? v->get<bool>() : fallback;
}

LightweightString<char> EditorPreferences::getPreference(const LightweightString<char>& key, const LightweightString<char>& fallback) const {
    std::lock_guard<std::mutex> g(lock_);
    const nlohmann::json* v = find(key);
    return v && v->is_string() ? LightweightString<char>(v->get_ref<const std::string&>()) : fallback;
}

LightweightString<wchar_t> EditorPreferences::getPreference(const LightweightString<char>& key, const LightweightString<wchar_t>& fallback) const {
    std::lock_guard<std::mutex> g(lock_);
    const nlohmann::json* v = find(key);
    return v && v->is_string() ? fromUTF8(LightweightString<char>(v->get_ref<const std::string&>())) : fallback;
}

void EditorPreferences::store(const LightweightString<char>& key, nlohmann::json value) const {
    std::lock_guard<std::mutex> g(lock_);
    if (value.is_null())
        values_.erase(key.str());
    else
        values_[key.str()] = std::move(value);
    std::error_code ec;
    std::filesystem::create_directories(folder_.c_str(), ec);
    writeFileAtomically(filePath(), values_.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) + "\n");
}

void EditorPreferences::setPreference(const LightweightString<char>& key, int value) const { store(key, value); }
void EditorPreferences::setPreference(const LightweightString<char>& key, bool value) const { store(key, value); }
void EditorPreferences::setPreference(const LightweightString<char>& key, const LightweightString<char>& value) const { store(key, value.str()); }
void EditorPreferences::setPreference(const LightweightString<char>& key, const LightweightString<wchar_t>& value) const {
    store(key, toUTF8(value).str());
}

bool EditorPreferences::hasPreference(const LightweightString<char>& key) const {
    std::lock_guard<std::mutex> g(lock_);
    return find(key) != nullptr;
}

void EditorPreferences::removePreference(const LightweightString<char>& key) const { store(key, nullptr); }

EditorPreferences& prefs() {
    static EditorPreferences p(Configuration::settingsFolder());
    return p;
}
