#include "ParamBoundConstraint.h"

#include "value/DataConvert.h"

LightweightString<wchar_t> ParamBoundConstraint::constrain(LightweightString<wchar_t>& value) {
    if (!other_) return value;
    const LightweightString<char> type = other_->getValueType();
    if (type != "int" && type != "double") return value;
    const LightweightString<wchar_t> boundText = other_->getValueAsString();
    const double bound = DataConvert::convert<LightweightString<wchar_t>, double>(boundText);
    if (crosses(DataConvert::convert<LightweightString<wchar_t>, double>(value), bound)) value = boundText;
    return value;
}
