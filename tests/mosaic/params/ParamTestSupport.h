#pragma once

#include "params/GenericParam.h"

#include <functional>
#include <vector>

// Handlers and constraints that record what they see, for the parameter tests.
namespace ParamTestSupport {

class Recorder : public GenericParam::iValueChangeHandler {
public:
    void valueChanged(const LightweightString<char>& id, const LightweightString<wchar_t>& value) override {
        ids.push_back(id);
        values.push_back(value);
    }
    std::vector<LightweightString<char>> ids;
    std::vector<LightweightString<wchar_t>> values;
};

class Constraint : public GenericParam::iValueConstraint {
public:
    explicit Constraint(std::function<LightweightString<wchar_t>(const LightweightString<wchar_t>&)> f) : f_(std::move(f)) {}
    LightweightString<wchar_t> constrain(LightweightString<wchar_t>& value) override {
        seen.push_back(value);
        value = f_(value);
        return value;
    }
    std::vector<LightweightString<wchar_t>> seen;

private:
    std::function<LightweightString<wchar_t>(const LightweightString<wchar_t>&)> f_;
};

} // namespace ParamTestSupport
