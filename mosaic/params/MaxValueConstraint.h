#pragma once

#include "ParamBoundConstraint.h"

/// Keeps a number from going above another parameter's present value.
class MaxValueConstraint : public ParamBoundConstraint {
public:
    using ParamBoundConstraint::ParamBoundConstraint;

protected:
    bool crosses(double value, double bound) const override { return bound < value; }
};
