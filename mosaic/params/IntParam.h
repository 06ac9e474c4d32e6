#pragma once

#include "Param.h"

namespace GenericParam {

/// A whole number. Its range holds only for values set as text.
class IntParam : public Param<int> {
public:
    IntParam(int value, const LightweightString<char>& id, const UIString& legend, const UIString& tooltip,
             const LightweightString<char>& valueType = "int")
        : Param<int>(value, id, legend, tooltip, valueType) {}
    Zn::Ptr<iParam> clone() const override { return Zn::Ptr<iParam>(new IntParam(*this)); }

protected:
    IntParam(const IntParam& other) : Zn::InternalRefCount(), Param<int>(other) {}
};

} // namespace GenericParam
