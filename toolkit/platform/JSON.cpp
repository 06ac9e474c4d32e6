#include "JSON.h"

#include "core/Utf8.h"

#include <fstream>
#include <iterator>

namespace JSON {

Zn::Ptr<Element> parse(const LightweightString<char>& text) {
    nlohmann::ordered_json doc = nlohmann::ordered_json::parse(text.begin(), text.end(), nullptr, false);
    if (doc.is_discarded() || (!doc.is_object() && !doc.is_array())) return {};
    return Zn::Ptr<Element>(new Element(doc));
}

Zn::Ptr<Element> parse(const LightweightString<wchar_t>& text) { return parse(toUTF8(text)); }

Zn::Ptr<Element> parseFile(const LightweightString<wchar_t>& path) {
    std::ifstream in(toUTF8(path).c_str(), std::ios::binary);
    if (!in) return {};
    std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    return parse(LightweightString<char>(text));
}

} // namespace JSON
