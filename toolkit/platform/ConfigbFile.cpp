#include "ConfigbFile.h"

#include "TextFile.h"
#include "core/Utf8.h"

#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>

namespace {

using Json = nlohmann::ordered_json;

bool readEntry(const Json& value, ConfigEntryT& entry) {
    if (!value.is_object()) return false;
    auto type = value.find("type");
    auto text = value.find("value");
    if (type == value.end() || text == value.end() || !type->is_string() || !text->is_string()) return false;
    entry = ConfigEntryT(type->get_ref<const std::string&>(), text->get_ref<const std::string&>());
    return true;
}

} // namespace

LightweightString<char> ConfigbFile::toText(const configb& config) {
    Json doc = Json::object();
    for (const auto& [key, entry] : config.entries()) doc[key.str()] = Json{{"type", entry.type.str()}, {"value", entry.value.str()}};
    // Keys and values are meant to be UTF-8; a stray byte must not stop the save.
    return LightweightString<char>(doc.dump(2, ' ', false, Json::error_handler_t::replace) + "\n");
}

bool ConfigbFile::fromText(const LightweightString<char>& text, configb& config) {
    Json doc = Json::parse(text.str(), nullptr, false);
    if (doc.is_discarded() || !doc.is_object()) return false;
    configb read;
    for (const auto& [key, value] : doc.items()) {
        ConfigEntryT entry;
        if (readEntry(value, entry)) read.set(LightweightString<char>(key), entry);
    }
    config = read;
    return true;
}

bool ConfigbFile::isStore(const LightweightString<char>& text) {
    Json doc = Json::parse(text.str(), nullptr, false);
    if (doc.is_discarded() || !doc.is_object()) return false;
    ConfigEntryT entry;
    for (const auto& member : doc)
        if (!readEntry(member, entry)) return false;
    return true;
}

bool ConfigbFile::save(const configb& config, const LightweightString<wchar_t>& path) {
    if (path.empty()) return false;
    return writeFileAtomically(toUTF8(path), toText(config).str());
}

bool ConfigbFile::load(const LightweightString<wchar_t>& path, configb& config) {
    if (path.empty()) return false;
    std::ifstream in(toUTF8(path).c_str(), std::ios::binary);
    if (!in) return false;
    std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad()) return false;
    return fromText(LightweightString<char>(bytes), config);
}
