#pragma once

#include "iParam.h"

/// Holds a number to the present value of another parameter, from below or above.
/// The other parameter is not moved, and nothing runs when it changes: the bound is
/// met only when this parameter's value changes. Against a parameter whose value is
/// not a number ("int" or "double") every value passes unchanged.
class ParamBoundConstraint : public GenericParam::iValueConstraint {
public:
    explicit ParamBoundConstraint(const Zn::Ptr<GenericParam::iParam>& other) : other_(other) {}

    LightweightString<wchar_t> constrain(LightweightString<wchar_t>& value) override;
    const Zn::Ptr<GenericParam::iParam>& other() const { return other_; }
    // Lets go of the other parameter, after which every value passes.
    void release() { other_ = nullptr; }

protected:
    // True when `value` lies beyond `bound` on the side this constraint keeps.
    virtual bool crosses(double value, double bound) const = 0;

private:
    Zn::Ptr<GenericParam::iParam> other_;
};
