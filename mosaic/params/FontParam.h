#pragma once

#include "Param.h"

namespace GenericParam {

/// The name of a font. The value type word is the caller's.
class FontParam : public Param<LightweightString<wchar_t>> {
public:
    FontParam(const UIString& legend, const LightweightString<char>& id, const UIString& tooltip, const LightweightString<wchar_t>& value,
              const LightweightString<char>& valueType = "font")
        : Param<LightweightString<wchar_t>>(value, id, legend, tooltip, valueType) {}
    Zn::Ptr<iParam> clone() const override { return Zn::Ptr<iParam>(new FontParam(*this)); }

protected:
    FontParam(const FontParam& other) : Zn::InternalRefCount(), Param<LightweightString<wchar_t>>(other) {}
};

} // namespace GenericParam
