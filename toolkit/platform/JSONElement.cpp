#include "JSONElement.h"

#include "core/Utf8.h"

#include <cstring>

namespace JSON {

Zn::Ptr<Element> Element::getChild(unsigned short index) const { return index < children_.size() ? children_[index] : Zn::Ptr<Element>(); }

Zn::Ptr<Element> Element::getChild(const char* key) const {
    if (!key) return {};
    for (const auto& c : children_)
        if (c->name_ == key) return c;
    return {};
}

LightweightString<char> Element::getString(const char* key) const {
    if (!key) return {};
    for (const auto& s : strings_)
        if (s.name == key) return s.value;
    return {};
}

LightweightString<wchar_t> Element::getWString(const char* key) const { return fromUTF8(getString(key)); }

bool Element::hasString(const char* key) const {
    if (!key) return false;
    for (const auto& s : strings_)
        if (s.name == key) return true;
    return false;
}

bool Element::getBool(const char* key, bool fallback) const {
    if (!key) return fallback;
    for (const auto& [name, value] : bools_)
        if (name == key) return value;
    // Text forms of a flag are common in hand-written descriptions.
    LightweightString<char> s = getString(key);
    if (s == "true" || s == "1") return true;
    if (s == "false" || s == "0") return false;
    for (const auto& n : numericAttribs)
        if (n.name == key) return n.value != 0.0;
    return fallback;
}

LightweightString<char> Element::getString(unsigned short index) const {
    return index < strings_.size() ? strings_[index].value : LightweightString<char>();
}

LightweightString<char> Element::getStringAttribName(unsigned short index) const {
    return index < strings_.size() ? strings_[index].name : LightweightString<char>();
}

LightweightString<char> Element::getNumericAttribName(unsigned short index) const {
    return index < numericAttribs.size() ? numericAttribs[index].name : LightweightString<char>();
}

double Element::getNumber(const char* key, double fallback) const {
    if (!key) return fallback;
    for (const auto& n : numericAttribs)
        if (n.name == key) return n.value;
    return fallback;
}

} // namespace JSON
