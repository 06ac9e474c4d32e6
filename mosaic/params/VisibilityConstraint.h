#pragma once

#include "iValueChangeHandler.h"

class Glob;

/// Shows a row only while the parameter it watches holds the required text, and
/// hides it otherwise. The row belongs to its panel; once it has died, changes pass it by.
class VisibilityConstraint : public GenericParam::iValueChangeHandler {
public:
    VisibilityConstraint(Glob* widget, const LightweightString<wchar_t>& required) : widget_(widget), required_(required) {}

    void valueChanged(const LightweightString<char>& id, const LightweightString<wchar_t>& value) override;
    const LightweightString<wchar_t>& required() const { return required_; }

private:
    Glob* widget_;
    LightweightString<wchar_t> required_;
};
