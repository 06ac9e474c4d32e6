// Panels built from a list of parameters: which row each parameter gets, where its
// controls sit, how the rows depend on each other, and the actions.
#include "UIBuilderParamsTestSupport.h"
#include "controls/Button.h"
#include "controls/Checkbox.h"
#include "controls/LinkAwareMultiLineTextBox.h"
#include "controls/NumericTextBox.h"
#include "controls/Slider.h"
#include "controls/TitleMenuButton.h"
#include "controls/TitleTextBox.h"
#include "controls/VerticalScrollingBase.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "params/RemappingValAdaptor.h"
#include "params/SliderParamHost.h"
#include "params/TitledGlob.h"
#include "params/UIBuilderParams.h"
#include "testing/TestKit.h"

#include <gtest/gtest.h>

using namespace GenericParam;
using namespace UIBuilderParamsTestSupport;

namespace {

int rowHeight() { return UifStd::instance().getRowHeight(); }
int gap() { return UifStd::instance().getWidgetGap(); }

Zn::Ptr<iParam> ranged(Zn::Ptr<iParam> p, int min, int max) {
    as<int>(p).setRange(min, max);
    return p;
}

// A "Reset" action that puts every parameter of the panel back to its default.
Zn::Ptr<ActionParam> resetAction() {
    Zn::Ptr<ActionParam> action(new ActionParam(0, "reset", L"Reset", L""));
    action->title = L"Defaults";
    action->callback = Zn::Ptr<iCallbackBase<bool, ActionParam::CallbackData>>(new FunctionCallback<ActionParam::CallbackData, bool>(
        std::function<bool(const ActionParam::CallbackData&)>([](const ActionParam::CallbackData& data) {
            for (const auto& p : *data.params) p->reset();
            return true;
        })));
    return action;
}

class UIBuilderList : public ::testing::Test {
protected:
    void SetUp() override { panel = TestKit::realize(new StandardPanel(StandardPanel::InitArgs(500, 400))); }
    void TearDown() override {
        UIBuilder::setActionParamsOnMenu(false);
        TestKit::reset();
    }

    Zn::Ptr<UIBuilder::Params> build(const UIBuilder::ParamList& params) {
        auto set = UIBuilder::build(params, panel);
        TestKit::pump();
        return set;
    }

    StandardPanel* panel = nullptr;
};

} // namespace

TEST_F(UIBuilderList, EachKnownParameterGetsItsKindOfRowOnACloneInRowOrder) {
    UIBuilder::ParamList params;
    params.push_back(make<DoubleParam>(L"Gain", "gain", L"", 0.5, 0.0, 1.0));
    params.push_back(make<BoolParam>(L"Loop", "loop", L"", true));
    params.push_back(make<TextParam>(WString(L"clip"), "name", L"Name", L""));
    params.push_back(make<ChoiceParam>(L"Codec", "codec", L"", 20, std::vector<ChoiceParam::Choice>{{L"One", 10}, {L"Two", 20}}));
    params.push_back(make<LabelParam>(WString(L"Some words"), "note", L"Some words", L""));
    params.push_back(make<FontParam>(L"Font", "font", L"", WString(L"DejaVu Sans")));
    params.push_back(make<IntParam>(3, "count", L"Count", L""));
    params.push_back(resetAction());
    auto set = build(params);

    std::vector<std::string> ids;
    for (const auto& p : set->params()) ids.push_back(p->getID().str());
    EXPECT_EQ(ids, (std::vector<std::string>{"gain", "loop", "name", "codec", "note", "count", "reset"})) << "a font makes no row in a list";
    EXPECT_NE(dynamic_cast<SliderParamHost*>(set->getWidget("gain")), nullptr);
    EXPECT_NE(dynamic_cast<Checkbox*>(set->getWidget("loop")), nullptr);
    EXPECT_NE(dynamic_cast<TitleTextBox*>(set->getWidget("name")), nullptr);
    EXPECT_NE(dynamic_cast<TitleMenuButton*>(set->getWidget("codec")), nullptr);
    EXPECT_NE(dynamic_cast<LinkAwareMultiLineTextBox*>(set->getWidget("note")), nullptr);
    EXPECT_NE(dynamic_cast<SliderParamHost*>(set->getWidget("count")), nullptr);
    EXPECT_STREQ(set->getWidget("reset")->idstring(), "TitledButton");

    // The caller's parameters keep their values: the rows work on clones.
    auto* loop = dynamic_cast<Checkbox*>(set->getWidget("loop"));
    EXPECT_TRUE(loop->getState());
    TestKit::click(TestKit::centreOf(loop));
    EXPECT_EQ(set->params()[1]->getValueAsString(), L"false");
    EXPECT_EQ(params[1]->getValueAsString(), L"true");

    // Rows run downward, one row gap and one rule apart.
    Glob* previous = nullptr;
    for (const auto& p : set->params()) {
        Glob* row = set->getWidget(p->getID());
        if (previous) {
            EXPECT_LT(row->getY() + row->height(), previous->getY()) << p->getID().str();
        }
        previous = row;
    }
    Glob* first = set->getWidget("gain");
    EXPECT_EQ(first->getY() + first->height(), panel->getUserArea().y2) << "the first row at the top of the user area";
}

TEST_F(UIBuilderList, ASliderRowLinesUpAtTheLegendColumnWithItsBoxAtTheRightEdge) {
    UIBuilder::ParamList params;
    params.push_back(make<DoubleParam>(L"A fairly long legend", "gain", L"", 0.25, 0.0, 1.0));
    params.push_back(make<DoubleParam>(L"Mix", "mix", L"", 0.5, 0.0, 1.0));
    params[1]->setPresentationHints(2);
    params.push_back(make<TextParam>(WString(L"x"), "name", L"Name", L""));
    auto set = build(params);

    UIBuilder probe(panel, 0);
    probe.calcMaxLegendWidth(params);
    const int W = panel->getUserArea().width(), L = probe.getLegendWidth(), h = rowHeight();
    EXPECT_GT(L, Glib::measureText(L"A fairly long legend", Glib::FontDesc(getDefaultFontName(0), getDefaultFontSize(), 0)).x)
        << "the column fits the widest legend";
    UIBuilder narrow(panel, 0);
    narrow.calcMaxLegendWidth(UIBuilder::ParamList{params[1]});
    EXPECT_LT(narrow.getLegendWidth(), L) << "and narrows with it";

    auto* host = dynamic_cast<SliderParamHost*>(set->getWidget("gain"));
    auto* titled = dynamic_cast<TitledGlob<Slider>*>(host->titled);
    ASSERT_NE(titled, nullptr);
    EXPECT_TRUE(titled->sliderRow);
    EXPECT_EQ(host->width(), W);
    EXPECT_EQ(titled->width(), W - 2 * h - gap());
    Slider* slider = titled->control();
    EXPECT_EQ(slider->width(), titled->width() - L);
    EXPECT_EQ(slider->getX(), L) << "the control starts at the legend column";
    EXPECT_DOUBLE_EQ(slider->getPosition(), 0.25);

    NumericTextBox* box = nullptr;
    for (Glob* child : host->getChildren())
        if (auto* b = dynamic_cast<NumericTextBox*>(child)) box = b;
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->width(), 2 * h);
    EXPECT_EQ(box->getX() + box->width(), W - UifStd::instance().getIndentWidth()) << "one indent in from the right edge";
    EXPECT_EQ(box->getString(), L"0.25");

    // With the hint 2 a float shows its slider alone, over the whole row.
    auto* mixHost = dynamic_cast<SliderParamHost*>(set->getWidget("mix"));
    EXPECT_EQ(mixHost->titled->width(), W);
    EXPECT_EQ(mixHost->numChildren(), 1u);

    // The text box of a text row starts at the same column.
    auto* text = dynamic_cast<TitleTextBox*>(set->getWidget("name"));
    EXPECT_EQ(text->getTextBox()->width(), W - L);
}

TEST_F(UIBuilderList, IntegerSlidersStepByAFiveHundredthOfTheirRangeAndEmptyRangesKeepTheDefaults) {
    UIBuilder::ParamList params;
    params.push_back(ranged(make<IntParam>(5, "wide", L"Wide", L""), 0, 100000));
    params.push_back(ranged(make<IntParam>(5, "narrow", L"Narrow", L""), 0, 100));
    params.push_back(make<DoubleParam>(L"Flat", "flat", L"", 3.0, 2.0, 2.0));
    auto set = build(params);
    auto slider = [&](const char* id) {
        return dynamic_cast<TitledGlob<Slider>*>(dynamic_cast<SliderParamHost*>(set->getWidget(id))->titled)->control();
    };
    EXPECT_DOUBLE_EQ(slider("wide")->getValueIncrement(), 200.0);
    EXPECT_DOUBLE_EQ(slider("narrow")->getValueIncrement(), 1.0);
    EXPECT_DOUBLE_EQ(slider("narrow")->getMaxValue(), 100.0);

    Slider defaults(Slider::InitArgs(Colour(), 100));
    EXPECT_DOUBLE_EQ(slider("flat")->getMinValue(), defaults.getMinValue()) << "a range of one point is no range";
    EXPECT_DOUBLE_EQ(slider("flat")->getMaxValue(), defaults.getMaxValue());
}

TEST_F(UIBuilderList, DependenciesOfTheCallersParametersActOnTheClones) {
    UIBuilder::ParamList params;
    params.push_back(make<BoolParam>(L"Advanced", "advanced", L"", false));
    params.push_back(ranged(make<IntParam>(10, "low", L"Low", L""), 0, 100));
    params.push_back(ranged(make<IntParam>(50, "high", L"High", L""), 0, 100));
    params.push_back(make<TextParam>(WString(L""), "detail", L"Detail", L""));
    params[2]->isGreaterThan("low");
    params[1]->isLessThan("high");
    params[3]->isActiveIf("advanced", L"true");
    params[2]->isVisibleIf("advanced", L"true");
    auto set = build(params);

    EXPECT_FALSE(set->getWidget("detail")->isActive()) << "post-conditions run once the list is built";
    EXPECT_FALSE(set->getWidget("high")->isVisible()) << "and every visibility is set";
    std::vector<std::string> heard;
    set->addListener(listenerInto(heard));

    TestKit::click(TestKit::centreOf(set->getWidget("advanced")));
    EXPECT_TRUE(set->getWidget("detail")->isActive());
    EXPECT_TRUE(set->getWidget("high")->isVisible());
    EXPECT_EQ(heard, (std::vector<std::string>{"advanced"}));

    set->params()[2]->setValueFromString(L"5");
    EXPECT_EQ(set->params()[2]->getValueAsString(), L"10") << "high is held above low";
    set->params()[1]->setValueFromString(L"70");
    EXPECT_EQ(set->params()[1]->getValueAsString(), L"10") << "low is held below high";
    EXPECT_EQ(params[2]->getValueAsString(), L"50") << "the caller's parameters are untouched";
}

TEST_F(UIBuilderList, AResetActionChangesEverythingAndIsToldOnce) {
    UIBuilder::ParamList params;
    params.push_back(make<BoolParam>(L"Loop", "loop", L"", false));
    params.push_back(make<DoubleParam>(L"Gain", "gain", L"", 0.5, 0.0, 1.0));
    params.push_back(make<TextParam>(WString(L"clip"), "name", L"Name", L""));
    params.push_back(resetAction());
    auto set = build(params);
    auto* reset = dynamic_cast<TitledGlob<Button>*>(set->getWidget("reset"));
    EXPECT_EQ(reset->getTitle().getString(), L"Defaults") << "the title of the action is its legend column";

    set->params()[0]->setValueFromString(L"true");
    set->params()[1]->setValueFromString(L"0.75");
    set->params()[2]->setValueFromString(L"other");
    std::vector<std::string> heard;
    set->addListener(listenerInto(heard));
    TestKit::click(TestKit::centreOf(reset->control()));
    EXPECT_EQ(heard, (std::vector<std::string>{"+payload"})) << "one call, with the action's message";
    EXPECT_EQ(set->params()[0]->getValueAsString(), L"false");
    EXPECT_FALSE(dynamic_cast<Checkbox*>(set->getWidget("loop"))->getState()) << "the widgets follow";
    EXPECT_EQ(dynamic_cast<TitleTextBox*>(set->getWidget("name"))->getString(), L"clip");
}

TEST_F(UIBuilderList, OnTheMenuAnActionsRowIsAHiddenPlaceHolderAndItsItemRunsIt) {
    UIBuilder::setActionParamsOnMenu(true);
    UIBuilder::ParamList params;
    params.push_back(make<BoolParam>(L"Loop", "loop", L"", true));
    params.push_back(resetAction());
    auto set = build(params);
    Glob* row = set->getWidget("reset");
    ASSERT_NE(row, nullptr);
    EXPECT_FALSE(row->isVisible());
    EXPECT_EQ(row->width(), 0);
    EXPECT_EQ(row->height(), 0);
    ASSERT_EQ(panel->menuItems().size(), 1u);
    EXPECT_EQ(panel->menuItems()[0].text().getString(), L"Reset");

    set->params()[0]->setValueFromString(L"false");
    std::vector<std::string> heard;
    set->addListener(listenerInto(heard));
    panel->menuItems()[0].callback().invoke();
    TestKit::pump();
    EXPECT_EQ(set->params()[0]->getValueAsString(), L"true");
    EXPECT_EQ(heard.size(), 1u);
}

TEST_F(UIBuilderList, ARowMadeAloneTakesTheWidthGivenAndMeasuresItsOwnLegend) {
    Zn::Ptr<iParam> gain = make<DoubleParam>(L"Gain", "gain", L"", 0.5, 0.0, 1.0);
    Glob* row = UIBuilder::createWidget(gain, panel, 300, 0, Glob::UserTopLeft(0, 0), WidgetSurround());
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->width(), 300) << "narrower than the panel's user area";
    UIBuilder probe(panel, 0);
    UIBuilder::ParamList one;
    one.push_back(gain);
    probe.calcMaxLegendWidth(one);
    auto* titled = dynamic_cast<TitledGlob<Slider>*>(dynamic_cast<SliderParamHost*>(row)->titled);
    EXPECT_EQ(titled->control()->getX(), probe.getLegendWidth());
    // The parameter itself is bound, not a clone.
    titled->control()->setPosition(0.0);
    titled->control()->requestSetNewDataValue(0.75, kFinalChange);
    EXPECT_EQ(gain->getValueAsString(), L"0.75");

    Zn::Ptr<iParam> colour = make<ColourParam>(L"Tint", "tint", L"", NormalisedRGB{});
    EXPECT_EQ(UIBuilder::createWidget(colour, nullptr, 300, 0, Glob::UserTopLeft(0, 0), WidgetSurround()), nullptr);

    // The legends of actions take no part in the column.
    UIBuilder::ParamList actions;
    actions.push_back(resetAction());
    UIBuilder onlyActions(panel, 0), none(panel, 0);
    onlyActions.calcMaxLegendWidth(actions);
    none.calcMaxLegendWidth(UIBuilder::ParamList{});
    EXPECT_EQ(onlyActions.getLegendWidth(), none.getLegendWidth());
}

TEST_F(UIBuilderList, AChoiceRowShowsTheEntryOfItsValueAndEntryZeroForAValueOfNoEntry) {
    UIBuilder::ParamList params;
    params.push_back(make<ChoiceParam>(L"Codec", "codec", L"", 30, std::vector<ChoiceParam::Choice>{{L"One", 10}, {L"Two", 20}, {L"Three", 30}}));
    auto set = build(params);
    auto* row = dynamic_cast<TitleMenuButton*>(set->getWidget("codec"));
    EXPECT_EQ(row->getSelectedItem(), 2);
    set->params()[0]->setValueFromString(L"99");
    EXPECT_EQ(row->getSelectedItem(), 0);
    EXPECT_EQ(set->params()[0]->getValueAsString(), L"99");

    // Choosing an entry stores the value it stands for.
    row->getBtn()->requestSetNewDataValue(1, kFinalChange);
    EXPECT_EQ(set->params()[0]->getValueAsString(), L"20");
    EXPECT_EQ(row->getSelectedItem(), 1);

    RemappingValAdaptor<unsigned int, unsigned int> unbound;
    unbound.add(0, 5);
    EXPECT_EQ(unbound.getDataValue(), 0);
    EXPECT_FALSE(unbound.requestSetNewDataValue(7, kFinalChange)) << "an index past the map does nothing";
}

TEST_F(UIBuilderList, InAScrollerTheRowsAreStackedByIt) {
    auto* scroller = TestKit::realize(new VerticalScrollingBase(VerticalScrollingBase::InitArgs(400, 120)), {700, 100});
    UIBuilder::ParamList params;
    for (int i = 0; i < 8; ++i)
        params.push_back(make<BoolParam>(WString(L"Option"), LightweightString<char>(("o" + std::to_string(i)).c_str()), L"", false));
    auto set = UIBuilder::build(params, scroller);
    TestKit::pump();
    ASSERT_EQ(scroller->rows.size(), 8u);
    EXPECT_EQ(scroller->rows[3], set->getWidget("o3"));
    EXPECT_EQ(set->getWidget("o0")->parent(), scroller->content);
    EXPECT_GT(scroller->maxScrollOffset(), 0) << "eight rows do not fit in 120 pixels";
}

TEST_F(UIBuilderList, ABuildDropsItsRowsPaintsButNotThoseOtherPanelsAskedFor) {
    Glob* other = new StandardPanel(StandardPanel::InitArgs(60, 60));
    other->setupRootPos({700, 600});
    GlobManager::instance().realize(other);
    Drawable::disableRedraws();
    other->setCol(Colour(1, 0, 0), true);
    build({make<BoolParam>(L"Loop", "loop", L"", true)});
    Drawable::enableRedraws();
    EXPECT_TRUE(TestKit::pixelNear(other, 30, 30, 0xFFFF0000));
}

TEST_F(UIBuilderList, PaintedLegendsLineUpInOneColumnAndTheSliderAndBoxSitInTheirPlaces) {
    // Legends that begin with one letter begin with one column of ink when they line up.
    UIBuilder::ParamList params;
    params.push_back(make<DoubleParam>(L"Gain", "gain", L"", 0.5, 0.0, 1.0));
    params.push_back(ranged(make<IntParam>(40, "count", L"Grain, a wide legend for a count", L""), 0, 100));
    params.push_back(make<TextParam>(WString(L"clip"), "name", L"Group", L""));
    params.push_back(make<ChoiceParam>(L"Grade", "grade", L"", 20, std::vector<ChoiceParam::Choice>{{L"One", 10}, {L"Two", 20}}));
    params.push_back(make<BoolParam>(L"Loop", "loop", L"", true));
    auto set = build(params);
    UIBuilder probe(panel, 0);
    probe.calcMaxLegendWidth(params);
    const int L = probe.getLegendWidth();

    // The first column of a row's legend column with a pixel of the text's colour, in panel coordinates.
    auto legendStart = [&](Glob* row) {
        const int left = row->screenPos().x - panel->screenPos().x;
        for (int x = 0; x < L; ++x)
            if (TestKit::countPixels(row, BoxInt(x, 0, x + 1, row->height()), row->getPalette().text(), 40) > 0) return left + x;
        return -1;
    };
    auto titled = [&](const char* id) { return dynamic_cast<SliderParamHost*>(set->getWidget(id))->titled; };
    const int gainStart = legendStart(titled("gain"));
    ASSERT_GT(gainStart, 0) << "the legend is painted, inset from the row's edge";
    EXPECT_EQ(legendStart(titled("count")), gainStart);
    EXPECT_EQ(legendStart(set->getWidget("name")), gainStart) << "a text row's legend";
    EXPECT_EQ(legendStart(set->getWidget("grade")), gainStart) << "a choice row's legend";
    auto* name = dynamic_cast<TitleTextBox*>(set->getWidget("name"));
    EXPECT_EQ(name->getTextBox()->screenPos().x - name->screenPos().x, L) << "the text box starts at the legend column";

    // The slider's track is painted right of the legend column and nowhere left of it;
    // the number box is painted at the row's right edge, one indent in.
    Glob* gainRow = set->getWidget("gain");
    Slider* slider = dynamic_cast<TitledGlob<Slider>*>(titled("gain"))->control();
    EXPECT_EQ(slider->screenPos().x - gainRow->screenPos().x, L);
    const std::uint32_t rowBack = TestKit::globPixel(gainRow, 1, 1);
    int sliderInk = 0, leftInk = 0;
    for (int x = 0; x < slider->width(); ++x) sliderInk += TestKit::globPixel(slider, x, slider->height() / 2) != rowBack;
    for (int x = L - UifStd::instance().getWidgetGap(); x < L; ++x) leftInk += TestKit::globPixel(gainRow, x, gainRow->height() / 2) != rowBack;
    EXPECT_GT(sliderInk, slider->width() / 2) << "the track runs along the slider";
    EXPECT_EQ(leftInk, 0) << "and stops at the legend column";

    NumericTextBox* box = nullptr;
    for (Glob* child : set->getWidget("gain")->getChildren())
        if (auto* b = dynamic_cast<NumericTextBox*>(child)) box = b;
    ASSERT_NE(box, nullptr);
    const int boxRight = box->screenPos().x - gainRow->screenPos().x + box->width();
    EXPECT_EQ(boxRight, gainRow->width() - UifStd::instance().getIndentWidth());
    EXPECT_NE(TestKit::globPixel(box, box->width() / 2, box->height() / 2), rowBack) << "the box is painted at its place";
    EXPECT_EQ(TestKit::globPixel(gainRow, gainRow->width() - UifStd::instance().getIndentWidth() / 2, box->getY() + box->height() / 2), rowBack)
        << "and the indent right of it is left clear";
}
