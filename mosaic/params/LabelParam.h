#pragma once

#include "Param.h"

namespace GenericParam {

/// Text that is shown, not edited.
class LabelParam : public Param<LightweightString<wchar_t>> {
public:
    LabelParam(const LightweightString<wchar_t>& value, const LightweightString<char>& id, const UIString& legend, const UIString& tooltip,
               const LightweightString<char>& valueType = "text")
        : Param<LightweightString<wchar_t>>(value, id, legend, tooltip, valueType) {}
    Zn::Ptr<iParam> clone() const override { return Zn::Ptr<iParam>(new LabelParam(*this)); }

protected:
    LabelParam(const LabelParam& other) : Zn::InternalRefCount(), Param<LightweightString<wchar_t>>(other) {}
};

} // namespace GenericParam
