#include "ResourceStrings.h"

#include "Configuration.h"
#include "core/Utf8.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <mutex>
#include <nlohmann/json.hpp>

namespace {

using Table = std::map<ResId, LightweightString<wchar_t>>;

struct Store {
    std::mutex lock;
    std::map<LightweightString<char>, Table> languages;
    LightweightString<char> current = "en";
    bool shippedLoaded = false;
};

Store& store() {
    static Store s;
    return s;
}

bool readTable(const LightweightString<char>& path, Table& out) {
    std::ifstream in(path.c_str(), std::ios::binary);
    if (!in) return false;
    std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    nlohmann::json doc = nlohmann::json::parse(text, nullptr, false);
    if (doc.is_discarded() || !doc.is_object()) return false;
    for (auto it = doc.begin(); it != doc.end(); ++it) {
        char* end = nullptr;
        unsigned long id = std::strtoul(it.key().c_str(), &end, 10);
        if (it.key().empty() || *end || !it.value().is_string()) continue;
        out[static_cast<ResId>(id)] = fromUTF8(LightweightString<char>(it.value().get_ref<const std::string&>()));
    }
    return true;
}

// The strings shipped with the toolkit, read at first use.
void loadShipped(Store& s) {
    s.shippedLoaded = true;
    LightweightString<char> base = Configuration::resourcesFolder();
    Table en;
    if (readTable(base + "/strings/en.json", en))
        for (auto& [id, text] : en) s.languages["en"].emplace(id, text);
}

LightweightString<wchar_t> lookup(ResId id) {
    Store& s = store();
    std::lock_guard<std::mutex> g(s.lock);
    if (!s.shippedLoaded) loadShipped(s);
    for (const LightweightString<char>& lang : {s.current, LightweightString<char>("en")}) {
        auto l = s.languages.find(lang);
        if (l == s.languages.end()) continue;
        auto it = l->second.find(id);
        if (it != l->second.end()) return it->second;
    }
    return {};
}

} // namespace

LightweightString<wchar_t> resourceStrW(ResId id) { return lookup(id); }

LightweightString<wchar_t> resourceStrW(ResId id, ResStrFmt format) {
    LightweightString<wchar_t> s = lookup(id);
    // Format 1 asks for the text with a leading capital, for the start of a sentence.
    if (format == 1 && !s.empty() && s[0] >= L'a' && s[0] <= L'z') s.set(0, static_cast<wchar_t>(s[0] - L'a' + L'A'));
    return s;
}

LightweightString<wchar_t> ellipsisResourceStrW(ResId id, ResStrFmt format) { return resourceStrW(id, format) + L".."; }

LightweightString<wchar_t> paddedResourceStrW(ResId id, const wchar_t* prefix, const wchar_t* suffix, ResStrFmt format) {
    LightweightString<wchar_t> s(prefix);
    s += resourceStrW(id, format);
    s += suffix;
    return s;
}

namespace ResourceStrings {

void add(ResId id, const LightweightString<wchar_t>& text) {
    Store& s = store();
    std::lock_guard<std::mutex> g(s.lock);
    s.languages[s.current][id] = text;
}

bool loadFile(const LightweightString<char>& language, const LightweightString<char>& path) {
    Table t;
    if (!readTable(path, t)) return false;
    Store& s = store();
    std::lock_guard<std::mutex> g(s.lock);
    s.languages[language] = std::move(t);
    return true;
}

void setLanguage(const LightweightString<char>& language) {
    std::lock_guard<std::mutex> g(store().lock);
    store().current = language.empty() ? LightweightString<char>("en") : language;
}

LightweightString<char> language() {
    std::lock_guard<std::mutex> g(store().lock);
    return store().current;
}

} // namespace ResourceStrings
