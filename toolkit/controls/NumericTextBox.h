#pragma once

#include "TextBox.h"

#include <optional>

/// A text box for a number. Only the characters of a number can be typed. A
/// committed text that is no number goes back to the last good value, and a number
/// outside the range is brought to the nearer end, before the value goes to the
/// adaptor; the box then shows the corrected number. Up and Down step the value
/// (Page Up and Page Down ten steps) and commit it at once.
class NumericTextBox : public TextBox {
public:
    using InitArgs = TextBox::InitArgs;

    explicit NumericTextBox(const InitArgs& args);
    const char* idstring() const override { return "NumericTextBox"; }

    // The bounds of the value; given the wrong way round they are swapped. NaN
    // bounds are refused.
    void setValueRange(double min, double max);
    void setRange(double min, double max) { setValueRange(min, max); }
    void clearValueRange() { range_.reset(); }
    bool hasValueRange() const { return range_.has_value(); }
    double getMin() const { return range_ ? range_->first : 0.0; }
    double getMax() const { return range_ ? range_->second : 0.0; }
    void setStep(double step);
    double getStep() const { return step_; }

    // The number the box holds, corrected as a commit would correct it.
    double getValue() const;
    // Shows `value`, held to the range, as the committed text.
    void setValue(double value, eRedrawFlag flag = kRedraw);

    int handleKeyboardEvent(int keyCode) override;

protected:
    void commit() override;

private:
    // The number at the start of a text, if there is one and it is finite.
    static std::optional<double> parse(const LightweightString<wchar_t>& text);
    double constrained(double value) const;
    void step(double steps);

    std::optional<std::pair<double, double>> range_;
    double step_ = 1.0;
};
