#include "UIBuilderExample.h"

#include "HostPanel.h"
#include "core/FunctionCallback.h"
#include "platform/CommandRegistrar.h"

using namespace GenericParam;

namespace {

Zn::Ptr<iParam> resetEverything() {
    auto* reset = new ActionParam(0, "reset", UIString(L"Reset"), UIString());
    reset->callback = Zn::Ptr<iCallbackBase<bool, ActionParam::CallbackData>>(new FunctionCallback<ActionParam::CallbackData, bool>(
        std::function<bool(const ActionParam::CallbackData&)>([](const ActionParam::CallbackData& data) {
            bool changed = false;
            for (const auto& param : *data.params) changed = param->reset() || changed;
            return changed;
        })));
    return Zn::Ptr<iParam>(reset);
}

Zn::Ptr<iParam> ranged(IntParam* param, int min, int max) {
    param->setRange(min, max);
    return Zn::Ptr<iParam>(param);
}

void openTest2(const Zn::Ptr<iObject>&) {
    HostPanel::InitArgs args(400, 300);
    args.params = makeUIBuilderTest2Params();
    args.position = Glob::Centre(0, 0);
    HostPanel::make(args);
}

const CommandRegistrar test2("UIBuilderTest2", openTest2);

} // namespace

UIBuilder::ParamList makeUIBuilderTest2Params() {
    UIBuilder::ParamList params;
    params.push_back(Zn::Ptr<iParam>(new BoolParam(UIString(L"Bool param"), "bool1", UIString(), true)));
    params.push_back(Zn::Ptr<iParam>(new BoolParam(UIString(L"Bool param"), "bool2", UIString(), false)));
    params.push_back(Zn::Ptr<iParam>(new DoubleParam(UIString(L"Double param"), "double1", UIString(), 0.25, 0.0, 1.0)));
    params.push_back(Zn::Ptr<iParam>(new DoubleParam(UIString(L"Double param"), "double2", UIString(), 0.5, 0.0, 1.0)));
    params.push_back(Zn::Ptr<iParam>(new DoubleParam(UIString(L"Double param"), "double3", UIString(), 0.75, 0.0, 1.0)));
    params.push_back(ranged(new IntParam(50, "int", UIString(L"Int param"), UIString()), 0, 100));
    params.push_back(Zn::Ptr<iParam>(new ChoiceParam(UIString(L"Choice param"), "choice", UIString(), 1,
                                                     {{UIString(L"One"), 1}, {UIString(L"Two"), 2}, {UIString(L"Three"), 3}})));
    params.push_back(Zn::Ptr<iParam>(new TextParam(LightweightString<wchar_t>(L"Some text"), "text", UIString(L"Text param"), UIString())));
    params.push_back(resetEverything());
    // The second double counts only with the first switch on, the third stays above
    // the second, the integer counts only with the second switch off, and the text
    // shows for the choice "Two" alone.
    params[3]->isActiveIf("bool1", L"true");
    params[4]->isGreaterThan("double2");
    params[5]->isActiveIf("bool2", L"false");
    params[7]->isVisibleIf("choice", L"2");
    return params;
}
