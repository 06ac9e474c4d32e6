#include "NumericTextBox.h"

#include "value/DataConvert.h"

#include <charconv>
#include <cmath>
#include <string>

NumericTextBox::NumericTextBox(const InitArgs& args) : TextBox(args) { setCharacters(L"0123456789.-+eE", kOnlyCharacters); }

void NumericTextBox::setValueRange(double min, double max) {
    if (std::isnan(min) || std::isnan(max)) return;
    range_ = std::make_pair(std::min(min, max), std::max(min, max));
}

void NumericTextBox::setStep(double step) {
    if (std::isfinite(step) && step > 0.0) step_ = step;
}

std::optional<double> NumericTextBox::parse(const LightweightString<wchar_t>& text) {
    std::string narrow;
    for (wchar_t c : text) {
        if (c >= 128) break;
        narrow.push_back(static_cast<char>(c));
    }
    std::size_t first = narrow.find_first_not_of(" \t");
    if (first == std::string::npos) return std::nullopt;
    if (narrow[first] == '+') ++first;
    double value = 0.0;
    const char* begin = narrow.c_str() + first;
    auto r = std::from_chars(begin, narrow.c_str() + narrow.size(), value);
    if (r.ec != std::errc() || r.ptr == begin || !std::isfinite(value)) return std::nullopt;
    return value;
}

double NumericTextBox::constrained(double value) const { return range_ ? DataConvert::constrain(value, range_->first, range_->second) : value; }

double NumericTextBox::getValue() const {
    if (auto v = parse(getString())) return constrained(*v);
    if (auto last = parse(committedText())) return constrained(*last);
    return constrained(0.0);
}

void NumericTextBox::setValue(double value, eRedrawFlag flag) {
    if (std::isnan(value)) value = getValue();
    setString(DataConvert::toText(constrained(value)), flag);
}

void NumericTextBox::commit() {
    LightweightString<wchar_t> corrected = DataConvert::toText(getValue());
    if (corrected != getString()) setString(corrected);
    TextBox::commit();
}

void NumericTextBox::step(double steps) {
    LightweightString<wchar_t> next = DataConvert::toText(constrained(getValue() + steps * step_));
    if (next != getString()) {
        setString(next);
        IdStamp me = stamp();
        commit();
        if (!EventHandler::valid(this, me)) return;
        fireCallback(kCharTyped);
    }
}

int NumericTextBox::handleKeyboardEvent(int keyCode) {
    if (isEditable() && isActive()) {
        switch (Keys::plain(keyCode)) {
        case Keys::Up: step(1); return 1;
        case Keys::Down: step(-1); return 1;
        case Keys::PageUp: step(10); return 1;
        case Keys::PageDown: step(-10); return 1;
        default: break;
        }
    }
    return TextBox::handleKeyboardEvent(keyCode);
}
