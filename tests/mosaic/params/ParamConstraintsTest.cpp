// The conditions the builder wires between parameters and rows: which rows are
// active, which are shown, and numbers held to other parameters' values.
#include "UIBuilderParamsTestSupport.h"
#include "controls/StandardPanel.h"
#include "params/ActiveConstraint.h"
#include "params/MaxValueConstraint.h"
#include "params/MinValueConstraint.h"
#include "params/VisibilityConstraint.h"
#include "testing/TestKit.h"

#include <gtest/gtest.h>

using namespace GenericParam;
using namespace UIBuilderParamsTestSupport;

namespace {

class ParamConstraints : public ::testing::Test {
protected:
    void SetUp() override {
        panel = new StandardPanel(StandardPanel::InitArgs(300, 200));
        StandardPanel::InitArgs rowArgs(0, 20);
        row = panel->createWidget<StandardPanel>(rowArgs, Glob::UserTopLeft(0, 0));
    }
    void TearDown() override {
        delete panel;
        TestKit::reset();
    }
    LightweightVector<Zn::AttribValuePair> conditions(const char* text) { return Zn::AttribValuePair::vecFromString(text, ':', ','); }

    StandardPanel* panel = nullptr;
    Glob* row = nullptr;
};

UIBuilder::ParamList mixedParams() {
    UIBuilder::ParamList params;
    params.push_back(make<BoolParam>(L"On", "on", L"", true));
    params.push_back(make<IntParam>(3, "count", L"Count", L""));
    params.push_back(make<DoubleParam>(L"Level", "level", L"", 1.0, 0.0, 2.0));
    params.push_back(make<TextParam>(WString(), "name", L"Name", L""));
    return params;
}

} // namespace

TEST_F(ParamConstraints, ARowIsActiveOnlyWhileEveryConditionHoldsAsText) {
    UIBuilder::ParamList params = mixedParams();
    ActiveConstraint all(conditions("on:true,count:3,name:"), row);
    all.evaluate(params);
    EXPECT_TRUE(row->isActive()) << "a bool compares by its text form; an empty requirement matches an empty text";

    params[0]->setValueFromString(L"false");
    all.evaluate(params);
    EXPECT_FALSE(row->isActive());
    params[0]->setValueFromString(L"true");
    params[3]->setValueFromString(L"x");
    all.evaluate(params);
    EXPECT_FALSE(row->isActive());

    ActiveConstraint exact(conditions("level:1.0"), row);
    exact.evaluate(params);
    EXPECT_FALSE(row->isActive()) << "the level reads \"1\", and the comparison is of texts, exactly";
    ActiveConstraint none(LightweightVector<Zn::AttribValuePair>(), row);
    none.evaluate(params);
    EXPECT_TRUE(row->isActive()) << "no conditions, always active";
    ActiveConstraint missing(conditions("count:3,nobody:3"), row);
    missing.evaluate(params);
    EXPECT_FALSE(row->isActive()) << "an id that no parameter has keeps the row inactive";
    missing.evaluate(UIBuilder::ParamList());
    EXPECT_FALSE(row->isActive());
}

TEST_F(ParamConstraints, OfTwoConditionsOnOneIdTheFirstCountsAndTheFirstParameterIsRead) {
    ActiveConstraint twice(conditions("count:3,count:4,name:Caf\xC3\xA9"), row);
    ASSERT_EQ(twice.conditions().size(), 2u);
    EXPECT_EQ(twice.conditions().at("count"), WString(L"3"));
    EXPECT_EQ(twice.conditions().at("name"), WString(L"Caf\u00e9")) << "required values are read as UTF-8";

    UIBuilder::ParamList params = mixedParams();
    params[3]->setValueFromString(L"Caf\u00e9");
    params.push_back(make<IntParam>(4, "count", L"Again", L""));
    twice.evaluate(params);
    EXPECT_TRUE(row->isActive()) << "the first parameter with the id decides";
}

TEST_F(ParamConstraints, ARowThatHasDiedIsPassedBy) {
    UIBuilder::ParamList params = mixedParams();
    ActiveConstraint active(conditions("on:false"), row);
    VisibilityConstraint visible(row, L"true");
    Glob* dead = row;
    panel->removeWidget(row, true);
    active.evaluate(params);
    visible.valueChanged("on", L"false");
    EXPECT_FALSE(is_good_glob_ptr(dead));
    ActiveConstraint nobody(conditions("on:true"), nullptr);
    nobody.evaluate(params);
    VisibilityConstraint nothing(nullptr, L"");
    nothing.valueChanged("on", L"");
}

TEST_F(ParamConstraints, ARowIsShownOnlyWhileItsParameterHoldsTheRequiredText) {
    UIBuilder::ParamList params = mixedParams();
    params[0]->addChangeHandler(Zn::Ptr<iValueChangeHandler>(new VisibilityConstraint(row, L"true")));
    params[3]->addChangeHandler(Zn::Ptr<iValueChangeHandler>(new VisibilityConstraint(panel, L"")));
    params[0]->enforceConstraints();
    EXPECT_TRUE(row->isVisible()) << "the initial state, before any change";
    params[0]->setValueFromString(L"false");
    EXPECT_FALSE(row->isVisible());
    params[0]->setValueFromString(L"1");
    EXPECT_TRUE(row->isVisible()) << "the stored value's text counts, not what was typed";

    params[3]->enforceConstraints();
    EXPECT_TRUE(panel->isVisible()) << "an empty value matches an empty requirement";
    params[3]->setValueFromString(L" ");
    EXPECT_FALSE(panel->isVisible()) << "a window without a parent hides too";
}

TEST(ParamBounds, ANumberIsHeldToOtherParametersPresentValues) {
    auto in = make<IntParam>(2, "in", L"In", L"");
    auto limit = make<DoubleParam>(L"Limit", "limit", L"", 8.5, 0.0, 100.0);
    auto out = make<DoubleParam>(L"Out", "out", L"", 5.0, 0.0, 100.0);
    out->addValueConstraint(Zn::Ptr<iValueConstraint>(new MinValueConstraint(in)));
    out->addValueConstraint(Zn::Ptr<iValueConstraint>(new MaxValueConstraint(limit)));
    auto& value = as<double>(out);

    out->setValueFromString(L"1");
    EXPECT_EQ(value.getValue(), 2.0);
    out->setValueFromString(L"9");
    EXPECT_EQ(value.getValue(), 8.5);
    value.server() = 4.25;
    EXPECT_EQ(value.getValue(), 4.25) << "inside both bounds, untouched";
    value.server() = 2.0;
    EXPECT_EQ(value.getValue(), 2.0) << "a value on the bound is not beyond it";

    in->setValueFromString(L"6");
    EXPECT_EQ(value.getValue(), 2.0) << "moving the bound does not move the value";
    EXPECT_EQ(as<int>(in).getValue(), 6) << "nor is the bound moved";
    out->setValueFromString(L"5.5");
    EXPECT_EQ(value.getValue(), 6.0) << "the bound holds at the next change";

    auto choice = make<ChoiceParam>(L"C", "c", L"", 3, std::vector<ChoiceParam::Choice>{});
    auto steps = make<IntParam>(0, "steps", L"Steps", L"");
    steps->addValueConstraint(Zn::Ptr<iValueConstraint>(new MinValueConstraint(choice)));
    steps->setValueFromString(L"1");
    EXPECT_EQ(as<int>(steps).getValue(), 3) << "a choice is a number too";
}

TEST(ParamBounds, ABoundOnAParameterThatIsNotANumberPassesEveryValue) {
    auto text = make<TextParam>(WString(L"50"), "text", L"Text", L"");
    auto flag = make<BoolParam>(L"Flag", "flag", L"", true);
    auto label = make<LabelParam>(WString(L"99"), "label", L"", L"");
    auto count = make<IntParam>(10, "count", L"Count", L"");
    for (const auto& other : {text, flag, label}) {
        count->addValueConstraint(Zn::Ptr<iValueConstraint>(new MinValueConstraint(other)));
        count->addValueConstraint(Zn::Ptr<iValueConstraint>(new MaxValueConstraint(other)));
    }
    count->setValueFromString(L"-7");
    EXPECT_EQ(as<int>(count).getValue(), -7);
    count->setValueFromString(L"700");
    EXPECT_EQ(as<int>(count).getValue(), 700);

    MinValueConstraint released(count);
    released.release();
    WString low(L"-5");
    EXPECT_EQ(released.constrain(low), WString(L"-5")) << "a released bound passes every value";
    MaxValueConstraint none(nullptr);
    WString high(L"1e9");
    EXPECT_EQ(none.constrain(high), WString(L"1e9"));
}
