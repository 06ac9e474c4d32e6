#include "ParamTestSupport.h"
#include "core/FunctionCallback.h"

#include <gtest/gtest.h>

using namespace GenericParam;
using ParamTestSupport::Constraint;
using ParamTestSupport::Recorder;

namespace {
Zn::Ptr<Recorder> recorderOn(iParam& p) {
    Zn::Ptr<Recorder> r(new Recorder);
    p.addChangeHandler(r);
    return r;
}
} // namespace

TEST(Param, TextClampsIntegersToTheirRangeButNotDoubles) {
    IntParam count(5, "count", L"Count", L"");
    count.setRange(0, 10);
    DoubleParam level(L"Level", "level", L"", 5.0, 0.0, 10.0);
    count.setValueFromString(L"99");
    level.setValueFromString(L"99");
    EXPECT_EQ(count.getValue(), 10);
    EXPECT_EQ(level.getValue(), 99.0);
    EXPECT_EQ(count.getValueAsString(), WString(L"10"));
    count.setValueFromString(L"-3");
    EXPECT_EQ(count.getValue(), 0);
    IntParam unbounded(0, "free", L"", L"");
    unbounded.setValueFromString(L"12345");
    EXPECT_EQ(unbounded.getValue(), 12345);
    count.setValueFromString(L"not a number");
    EXPECT_EQ(count.getValue(), 0);
    EXPECT_TRUE(level.hasRange());
    EXPECT_FALSE(unbounded.hasRange());
}

TEST(Param, ResetOnlyChangesAndNotifiesWhenAwayFromTheDefault) {
    BoolParam flag(L"Flag", "flag", L"", true);
    auto heard = recorderOn(flag);
    EXPECT_FALSE(flag.reset());
    EXPECT_TRUE(heard->values.empty());
    flag.setValueFromString(L"false");
    EXPECT_EQ(heard->values, std::vector<WString>{L"false"});
    EXPECT_TRUE(flag.reset());
    EXPECT_TRUE(flag.getValue());
    EXPECT_EQ(heard->values.back(), WString(L"true"));
    // An empty string and an absent one are the same text.
    TextParam name(WString(), "name", L"Name", L"");
    auto heardName = recorderOn(name);
    name.server() = WString(L"");
    heardName->values.clear();
    EXPECT_FALSE(name.reset());
    EXPECT_TRUE(heardName->values.empty());
}

TEST(Param, ConstraintsRunInOrderOnTextAndTheStoredValueIsTheirResult) {
    DoubleParam gain(L"Gain", "gain", L"", 1.0, 0.0, 2.0);
    Zn::Ptr<Constraint> halve(new Constraint([](const WString& v) { return DataConvert::toText(DataConvert::doubleFromText(v) / 2); }));
    Zn::Ptr<Constraint> cap(new Constraint([](const WString& v) { return DataConvert::doubleFromText(v) > 1.0 ? WString(L"1") : v; }));
    gain.addValueConstraint(halve);
    gain.addValueConstraint(cap);
    auto heard = recorderOn(gain);
    gain.server() = 5.0;
    EXPECT_EQ(halve->seen, std::vector<WString>{L"5"});
    EXPECT_EQ(cap->seen, std::vector<WString>{L"2.5"}) << "each constraint works on the result of the one before";
    EXPECT_EQ(gain.getValue(), 1.0);
    EXPECT_EQ(heard->values, std::vector<WString>{L"1"});
    EXPECT_EQ(heard->ids, std::vector<LightweightString<char>>{"gain"});
    gain.server() = 0.3;
    EXPECT_DOUBLE_EQ(gain.getValue(), 0.15) << "a double passes through text without losing precision";
}

TEST(Param, EnforceConstraintsRunsEverythingOnceAndLeavesTheValue) {
    IntParam steps(7, "steps", L"Steps", L"");
    Zn::Ptr<Constraint> toZero(new Constraint([](const WString&) { return WString(L"0"); }));
    steps.addValueConstraint(toZero);
    auto first = recorderOn(steps);
    auto second = recorderOn(steps);
    steps.enforceConstraints();
    EXPECT_EQ(steps.getValue(), 7);
    EXPECT_EQ(toZero->seen, std::vector<WString>{L"7"});
    EXPECT_EQ(first->values, std::vector<WString>{L"7"});
    EXPECT_EQ(second->values, std::vector<WString>{L"7"});
}

TEST(Param, AClonesValueIsItsOwnButItsHandlersAreShared) {
    ChoiceParam source(L"Size", "size", L"tip", 2, {{L"One", 1}, {L"Two", 2}});
    source.isActiveIf("other", L"yes");
    auto heard = recorderOn(source);
    auto clone = Zn::dynamicCast<ChoiceParam>(source.clone());
    ASSERT_TRUE(clone);
    EXPECT_EQ(clone->getID(), LightweightString<char>("size"));
    EXPECT_EQ(clone->choices().size(), 2u);
    clone->server() = 1u;
    EXPECT_EQ(source.getValue(), 2u);
    EXPECT_EQ(clone->getValue(), 1u);
    EXPECT_EQ(heard->values, std::vector<WString>{L"1"}) << "the clone reaches the handler object it shares";
    clone->isActiveIf("third", L"no");
    EXPECT_EQ(source.getActiveIf().size(), 1u) << "a clone's conditions are its own";
    EXPECT_EQ(clone->getActiveIf().size(), 2u);
    source.server() = 2u;
    EXPECT_EQ(clone->getValue(), 1u);

    TextParam secret(L"", "pw", L"Password", L"");
    secret.obfuscated = true;
    secret.hint = L"at least 8 characters";
    auto secretClone = Zn::dynamicCast<TextParam>(secret.clone());
    ASSERT_TRUE(secretClone);
    EXPECT_TRUE(secretClone->obfuscated);
    EXPECT_EQ(secretClone->hint, secret.hint);
    EXPECT_TRUE(Zn::dynamicCast<DoubleParam>(DoubleParam(L"", "d", L"", 1, 0, 2).clone()));
}

TEST(Param, AChoiceKeepsAValueThatMatchesNoEntry) {
    ChoiceParam choice(L"Mode", "mode", L"", 7, {{L"A", 1}, {L"B", 2}});
    EXPECT_EQ(choice.getValue(), 7u);
    EXPECT_EQ(choice.indexOfValue(7), -1);
    EXPECT_EQ(choice.indexOfValue(2), 1);
    EXPECT_EQ(choice.getValueType(), LightweightString<char>("int"));
    choice.setValueFromString(L"2");
    EXPECT_EQ(choice.getValue(), 2u);
}

TEST(Param, AnActionCallsBackWithThePanelsParameters) {
    ActionParam reset(0, "reset", L"Reset", L"");
    LightweightVector<Zn::Ptr<iParam>> params;
    params.push_back(Zn::Ptr<iParam>(new BoolParam(L"B", "b", L"", false)));
    EXPECT_FALSE(reset.invoke(&params)) << "no callback, nothing to do";
    int calls = 0;
    reset.callback = Zn::Ptr<iCallbackBase<bool, ActionParam::CallbackData>>(new FunctionCallback<ActionParam::CallbackData, bool>(
        std::function<bool(const ActionParam::CallbackData&)>([&](const ActionParam::CallbackData& d) {
            ++calls;
            return d.params->size() == 1;
        })));
    EXPECT_TRUE(reset.invoke(&params));
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(reset.getValue(), 0u);
}

TEST(AttribValuePair, SplitsAtTheFirstSeparatorAndListsOnlyValidPairs) {
    Zn::AttribValuePair p("format=a=b", '=');
    EXPECT_TRUE(p.valid());
    EXPECT_EQ(p.name(), LightweightString<char>("format"));
    EXPECT_EQ(p.value(), LightweightString<char>("a=b"));
    EXPECT_FALSE(Zn::AttribValuePair("no separator", '=').valid());
    EXPECT_TRUE(Zn::AttribValuePair("empty=", '=').valid());
    auto v = Zn::AttribValuePair::vecFromString("a=1,junk,b=2,,c=", '=', ',');
    ASSERT_EQ(v.size(), 3u);
    EXPECT_EQ(v[1].name(), LightweightString<char>("b"));
    EXPECT_EQ(v[2].value(), LightweightString<char>(""));
    EXPECT_TRUE(Zn::AttribValuePair::vecFromString("", '=', ',').empty());
}
