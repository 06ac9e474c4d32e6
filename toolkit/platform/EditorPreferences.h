#pragma once

#include "core/LightweightString.h"

#include <mutex>
#include <nlohmann/json.hpp>

/// The user's preferences: keys and values in "preferences.json" in the settings
/// folder. Every change is written at once, through a temporary file renamed over
/// the old one, so a crash never leaves a torn file. A file that is not JSON is
/// moved aside to "preferences.json.corrupt" and the defaults are used.
class EditorPreferences {
public:
    // Preferences stored in `folder`; the folder is made when first written.
    explicit EditorPreferences(const LightweightString<char>& folder);

    int getPreference(const LightweightString<char>& key, int fallback) const;
    bool getPreference(const LightweightString<char>& key, bool fallback) const;
    LightweightString<char> getPreference(const LightweightString<char>& key, const LightweightString<char>& fallback) const;
    LightweightString<wchar_t> getPreference(const LightweightString<char>& key, const LightweightString<wchar_t>& fallback) const;
    LightweightString<char> getPreference(const LightweightString<char>& key, const char* fallback) const {
        return getPreference(key, LightweightString<char>(fallback));
    }

    void setPreference(const LightweightString<char>& key, int value) const;
    void setPreference(const LightweightString<char>& key, bool value) const;
    void setPreference(const LightweightString<char>& key, const LightweightString<char>& value) const;
    void setPreference(const LightweightString<char>& key, const LightweightString<wchar_t>& value) const;
    void setPreference(const LightweightString<char>& key, const char* value) const { setPreference(key, LightweightString<char>(value)); }

    // Reads the file again, as a process started now would.
    void reload();
    bool hasPreference(const LightweightString<char>& key) const;
    void removePreference(const LightweightString<char>& key) const;
    LightweightString<char> filePath() const;

private:
    void load();
    void store(const LightweightString<char>& key, nlohmann::json value) const;
    const nlohmann::json* find(const LightweightString<char>& key) const;

    LightweightString<char> folder_;
    mutable std::mutex lock_;
    mutable nlohmann::json values_ = nlohmann::json::object();
};

// The preferences of this user, in Configuration::settingsFolder().
EditorPreferences& prefs();
