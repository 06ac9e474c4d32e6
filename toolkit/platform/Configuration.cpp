#include "Configuration.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <mutex>
#include <nlohmann/json.hpp>

namespace {

struct Store {
    std::mutex lock;
    bool loaded = false;
    nlohmann::json values = nlohmann::json::object();
};

Store& store() {
    static Store s;
    return s;
}

void load(Store& s) {
    s.values = nlohmann::json::object();
    s.loaded = true;
    const char* named = std::getenv("MOSAIC_CONFIG");
    std::string path = named && *named ? named : (Configuration::settingsFolder() + "/config.json").str();
    std::ifstream in(path, std::ios::binary);
    if (!in) return;
    std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    nlohmann::json doc = nlohmann::json::parse(text, nullptr, false);
    if (!doc.is_discarded() && doc.is_object()) s.values = std::move(doc);
}

const nlohmann::json* find(const char* key) {
    Store& s = store();
    if (!s.loaded) load(s);
    if (!key) return nullptr;
    auto it = s.values.find(key);
    return it == s.values.end() ? nullptr : &*it;
}

} // namespace

int config_int(const char* key, int fallback) {
    std::lock_guard<std::mutex> g(store().lock);
    const nlohmann::json* v = find(key);
    if (!v) return fallback;
    if (v->is_number_integer()) {
        long long n = v->get<long long>();
        return (n < INT32_MIN || n > INT32_MAX) ? fallback : static_cast<int>(n);
    }
    if (v->is_boolean()) return v->get<bool>() ? 1 : 0;
    if (v->is_string()) {
        const std::string& s = v->get_ref<const std::string&>();
        char* end = nullptr;
        long n = std::strtol(s.c_str(), &end, 10);
        return (s.empty() || *end) ? fallback : static_cast<int>(n);
    }
    return fallback;
}

LightweightString<char> config_string(const char* key, const LightweightString<char>& fallback) {
    std::lock_guard<std::mutex> g(store().lock);
    const nlohmann::json* v = find(key);
    if (!v) return fallback;
    if (v->is_string()) return LightweightString<char>(v->get_ref<const std::string&>());
    return LightweightString<char>(v->dump());
}

namespace Configuration {

void reload() {
    std::lock_guard<std::mutex> g(store().lock);
    load(store());
}

LightweightString<char> settingsFolder() {
    if (const char* home = std::getenv("MOSAIC_HOME"); home && *home) return home;
    if (const char* xdg = std::getenv("XDG_CONFIG_HOME"); xdg && *xdg) return LightweightString<char>(xdg) + "/mosaic";
    const char* home = std::getenv("HOME");
    return LightweightString<char>(home && *home ? home : "/tmp") + "/.config/mosaic";
}

LightweightString<char> resourcesFolder() {
    if (const char* dir = std::getenv("MOSAIC_RESOURCES"); dir && *dir) return dir;
    std::error_code ec;
    if (std::filesystem::is_directory(MOSAIC_SOURCE_DIR "/resources", ec)) return MOSAIC_SOURCE_DIR "/resources";
    return MOSAIC_INSTALL_DATADIR;
}

} // namespace Configuration
