#pragma once

#include "Param.h"

namespace GenericParam {

/// A real number with a range, which its widgets keep.
class DoubleParam : public Param<double> {
public:
    DoubleParam(const UIString& legend, const LightweightString<char>& id, const UIString& tooltip, double value, double min, double max)
        : Param<double>(value, id, legend, tooltip, "double") {
        setRange(min, max);
    }
    Zn::Ptr<iParam> clone() const override { return Zn::Ptr<iParam>(new DoubleParam(*this)); }

protected:
    DoubleParam(const DoubleParam& other) : Zn::InternalRefCount(), Param<double>(other) {}
};

} // namespace GenericParam
