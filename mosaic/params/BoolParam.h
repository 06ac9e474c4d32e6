#pragma once

#include "Param.h"

namespace GenericParam {

/// A yes-or-no parameter, shown as a check box.
class BoolParam : public Param<bool> {
public:
    BoolParam(const UIString& legend, const LightweightString<char>& id, const UIString& tooltip, bool value)
        : Param<bool>(value, id, legend, tooltip, "bool") {}
    Zn::Ptr<iParam> clone() const override { return Zn::Ptr<iParam>(new BoolParam(*this)); }

protected:
    BoolParam(const BoolParam& other) : Zn::InternalRefCount(), Param<bool>(other) {}
};

} // namespace GenericParam
