#pragma once

#include "Param.h"

namespace GenericParam {

/// Text the user types: with a hint shown while empty, optionally hidden as it is
/// typed, and optionally committing the panel when the commit key is pressed.
class TextParam : public Param<LightweightString<wchar_t>> {
public:
    TextParam(const LightweightString<wchar_t>& value, const LightweightString<char>& id, const UIString& legend, const UIString& tooltip,
              const LightweightString<char>& valueType = "text")
        : Param<LightweightString<wchar_t>>(value, id, legend, tooltip, valueType) {}
    Zn::Ptr<iParam> clone() const override { return Zn::Ptr<iParam>(new TextParam(*this)); }

    LightweightString<wchar_t> hint;
    bool obfuscated = false;
    bool advance = false;

protected:
    TextParam(const TextParam& other)
        : Zn::InternalRefCount(), Param<LightweightString<wchar_t>>(other), hint(other.hint), obfuscated(other.obfuscated), advance(other.advance) {}
};

} // namespace GenericParam
