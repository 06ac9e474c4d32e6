// A change of a parameter's value: through one constraint and one change handler,
// both of which see the value as text.
#include "params/DoubleParam.h"

#include <benchmark/benchmark.h>

namespace {

class KeepPositive : public GenericParam::iValueConstraint {
public:
    LightweightString<wchar_t> constrain(LightweightString<wchar_t>& value) override {
        if (!value.empty() && value[0] == L'-') value = L"0";
        return value;
    }
};

class Count : public GenericParam::iValueChangeHandler {
public:
    void valueChanged(const LightweightString<char>&, const LightweightString<wchar_t>& value) override { chars += value.size(); }
    std::size_t chars = 0;
};

void BM_DoubleParamChange(benchmark::State& state) {
    GenericParam::DoubleParam level(L"Level", "level", L"", 0.0, 0.0, 100.0);
    level.addValueConstraint(Zn::Ptr<GenericParam::iValueConstraint>(new KeepPositive));
    Zn::Ptr<Count> heard(new Count);
    level.addChangeHandler(heard);
    double v = 0.0;
    for (auto _ : state) {
        v += 0.37;
        if (v > 100.0) v = 0.0;
        level.server() = v;
    }
    benchmark::DoNotOptimize(heard->chars);
    if (level.getValue() != v) state.SkipWithError("the value did not arrive");
}
BENCHMARK(BM_DoubleParamChange);

} // namespace
