#pragma once

#include "ParamBoundConstraint.h"

/// Keeps a number from going below another parameter's present value.
class MinValueConstraint : public ParamBoundConstraint {
public:
    using ParamBoundConstraint::ParamBoundConstraint;

protected:
    bool crosses(double value, double bound) const override { return bound > value; }
};
