#pragma once

#include "Param.h"

namespace GenericParam {

/// A colour, picked with the colour tools. The value type word is the caller's.
class ColourParam : public Param<NormalisedRGB> {
public:
    ColourParam(const UIString& legend, const LightweightString<char>& id, const UIString& tooltip, const NormalisedRGB& value,
                const LightweightString<char>& valueType = "colour")
        : Param<NormalisedRGB>(value, id, legend, tooltip, valueType) {}
    Zn::Ptr<iParam> clone() const override { return Zn::Ptr<iParam>(new ColourParam(*this)); }

protected:
    ColourParam(const ColourParam& other) : Zn::InternalRefCount(), Param<NormalisedRGB>(other) {}
};

} // namespace GenericParam
