#pragma once

#include "core/LightweightString.h"
#include "core/Ptr.h"
#include "core/iObject.h"

#include <vector>

namespace JSON {

/// One object (or array) of a parsed document, read as the library reads it:
/// children are the nested objects and arrays, string attributes the string
/// values (and the strings of an array, with empty names), numeric attributes the
/// numbers, booleans kept apart. Keys keep the order of the text.
class Element : public iObject {
public:
    /// A number of the object, by its key.
    struct NumericAttrib {
        LightweightString<char> name;
        double value = 0.0;
    };
    /// A string of the object, by its key (empty for a string of an array).
    struct StringAttrib {
        LightweightString<char> name;
        LightweightString<char> value;
    };

    // An empty element; the parser fills it.
    explicit Element(const LightweightString<char>& name) : name_(name) {}

    const LightweightString<char>& getName() const { return name_; }
    unsigned short getNumChildren() const { return static_cast<unsigned short>(children_.size()); }
    Zn::Ptr<Element> getChild(unsigned short index) const;
    Zn::Ptr<Element> getChild(const char* key) const;

    LightweightString<char> getString(const char* key) const;
    LightweightString<wchar_t> getWString(const char* key) const;
    bool hasString(const char* key) const;
    bool getBool(const char* key, bool fallback) const;
    LightweightString<char> getString(unsigned short index) const;
    LightweightString<char> getStringAttribName(unsigned short index) const;
    unsigned short getNumStringAttribs() const { return static_cast<unsigned short>(strings_.size()); }

    unsigned short getNumNumericAttribs() const { return static_cast<unsigned short>(numericAttribs.size()); }
    LightweightString<char> getNumericAttribName(unsigned short index) const;
    // The first numeric attribute of that name, or `fallback`.
    double getNumber(const char* key, double fallback) const;

    // The numbers of the element, in order; looked up by name, first match.
    std::vector<NumericAttrib> numericAttribs;

private:
    friend class ElementBuilder;
    LightweightString<char> name_;
    std::vector<Zn::Ptr<Element>> children_;
    std::vector<StringAttrib> strings_;
    std::vector<std::pair<LightweightString<char>, bool>> bools_;
};

} // namespace JSON
