// Panels built from JSON descriptions: every key and type, the dependencies, the
// folding of alternatives, and a whole panel driven by the mouse and keyboard.
#include "UIBuilderParamsTestSupport.h"
#include "controls/Checkbox.h"
#include "controls/LinkAwareMultiLineTextBox.h"
#include "controls/Menu.h"
#include "controls/NumericTextBox.h"
#include "controls/Slider.h"
#include "controls/TextLabel.h"
#include "controls/TitleMenuButton.h"
#include "controls/TitleTextBox.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "params/SliderParamHost.h"
#include "params/TitledGlob.h"
#include "params/UIBuilderParams.h"
#include "platform/JSON.h"
#include "testing/TestKit.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

using namespace GenericParam;
using namespace UIBuilderParamsTestSupport;

namespace {

int rowStep() { return UifStd::instance().getRowHeight() + UifStd::instance().getRowGap(); }

// A description with every type, both conditions, both bounds and a group of three
// alternatives (children 3 to 5, shown by the choice "mode" above them).
const wchar_t* everything = LR"({"params": [
  {"type": "heading", "legend": "Export"},
  {"type": "bool", "name": "advanced", "legend": "Advanced", "default": false, "tooltip": 7},
  {"type": "int", "name": "mode", "legend": "Mode", "values": {"Fast": 0, "Good": 1, "Best": 2}, "choice": "0"},
  {"type": "text", "name": "fast", "legend": "Fast note", "value": "quick", "visible if": "mode=0"},
  {"type": "text", "name": "good", "legend": "Good note", "value": "fine", "visible if": "mode=1"},
  {"type": "text", "name": "best", "legend": "Best note", "value": "slow", "visible if": "mode=2"},
  {"type": "int", "name": "low", "legend": "Low", "min": 0, "max": 100, "default": 10, "must not be higher than": "high"},
  {"type": "int", "name": "high", "legend": "High", "min": 0, "max": 100, "default": 90, "must not be lower than": "low"},
  {"type": "float", "name": "gain", "legend": "Gain", "min": 0, "max": 2, "default": 1, "active if": "advanced=true"},
  {"type": "text", "name": "title", "legend": "Title", "hint": "type a title", "active if": "advanced=true,mode=2"},
  {"type": "label", "name": "help", "legend": "Some <b>help</b> for the export."}
]})";

class UIBuilderJSON : public TestKit::ScreenTest {
protected:
    void SetUp() override { panel = makePanel(300 + 11 * rowStep()); }

    StandardPanel* makePanel(int height) {
        return TestKit::realize(new StandardPanel(StandardPanel::InitArgs(520, static_cast<unsigned short>(height))), {60, 60});
    }
    Zn::Ptr<UIBuilder::Params> build(const wchar_t* text, StandardPanel* into = nullptr) {
        auto set = UIBuilder::buildFromJSON(LightweightString<wchar_t>(text), into ? into : panel);
        TestKit::pump();
        return set;
    }
    static Slider* sliderOf(Glob* row) { return dynamic_cast<TitledGlob<Slider>*>(dynamic_cast<SliderParamHost*>(row)->titled)->control(); }
    static NumericTextBox* boxOf(Glob* row) {
        for (Glob* child : row->getChildren())
            if (auto* box = dynamic_cast<NumericTextBox*>(child)) return box;
        return nullptr;
    }
    static void typeInto(TextBoxBase* box, const wchar_t* text) {
        TestKit::click(TestKit::centreOf(box));
        TestKit::pressKey('a', Modifiers::Control);
        TestKit::typeText(text);
        TestKit::pressKey(Keys::Return);
    }
    static void choose(TitleMenuButton* row, int entry) {
        TestKit::click(TestKit::centreOf(row->getBtn()));
        Menu* menu = row->getBtn()->getMenu();
        ASSERT_NE(menu, nullptr);
        BoxInt b = menu->rowBox(entry);
        TestKit::click(TestKit::screenPointOf(menu, {(b.x1 + b.x2) / 2, (b.y1 + b.y2) / 2}));
    }

    StandardPanel* panel = nullptr;
};

} // namespace

TEST_F(UIBuilderJSON, AWholeDescriptionBuildsAndFollowsTheMouseAndKeyboard) {
    const int heightBefore = panel->height();
    auto set = build(everything);
    ASSERT_EQ(set->params().size(), 10u) << "the heading has no parameter";
    EXPECT_EQ(panel->height(), heightBefore - 3 * rowStep()) << "a group of three gives up three row steps";

    // The alternatives share the row under "mode", and only the chosen one shows.
    Glob* fast = set->getWidget("fast");
    Glob* good = set->getWidget("good");
    Glob* best = set->getWidget("best");
    EXPECT_EQ(good->getY(), fast->getY());
    EXPECT_EQ(best->getY(), fast->getY());
    EXPECT_TRUE(fast->isVisible());
    EXPECT_FALSE(good->isVisible());
    EXPECT_FALSE(best->isVisible());
    EXPECT_LT(set->getWidget("low")->getY() + set->getWidget("low")->height(), fast->getY()) << "the next row goes below the group";
    // Conditions of "active if" wait for the first change.
    EXPECT_TRUE(sliderOf(set->getWidget("gain"))->isActive());
    EXPECT_TRUE(set->getWidget("title")->isActive());

    std::vector<std::string> heard;
    set->addListener(listenerInto(heard));

    TestKit::click(TestKit::centreOf(set->getWidget("advanced")));
    EXPECT_EQ(heard, (std::vector<std::string>{"advanced"}));
    EXPECT_TRUE(sliderOf(set->getWidget("gain"))->isActive());
    EXPECT_TRUE(boxOf(set->getWidget("gain"))->isActive());
    EXPECT_FALSE(set->getWidget("title")->isActive()) << "mode is not yet 2";

    choose(dynamic_cast<TitleMenuButton*>(set->getWidget("mode")), 2);
    EXPECT_EQ(heard, (std::vector<std::string>{"advanced", "mode"}));
    EXPECT_EQ(set->params()[1]->getValueAsString(), L"2");
    EXPECT_FALSE(fast->isVisible());
    EXPECT_TRUE(best->isVisible());
    EXPECT_TRUE(set->getWidget("title")->isActive());

    // Bounds hold against typing: low may not pass high, high may not fall under low.
    typeInto(boxOf(set->getWidget("high")), L"40");
    typeInto(boxOf(set->getWidget("low")), L"75");
    EXPECT_EQ(set->params()[5]->getValueAsString(), L"40") << "low is held at high";
    EXPECT_EQ(boxOf(set->getWidget("low"))->getString(), L"40") << "and its box shows what was stored";
    EXPECT_DOUBLE_EQ(sliderOf(set->getWidget("low"))->getPosition(), 40.0);
    typeInto(boxOf(set->getWidget("high")), L"20");
    EXPECT_EQ(set->params()[6]->getValueAsString(), L"40") << "high is held at low";
    EXPECT_EQ(heard, (std::vector<std::string>{"advanced", "mode", "high", "low", "high"})) << "each change told once";

    typeInto(dynamic_cast<TitleTextBox*>(set->getWidget("title"))->getTextBox(), L"Caf\u00e9 night");
    EXPECT_EQ(set->params()[8]->getValueAsString(), L"Caf\u00e9 night");
    EXPECT_EQ(heard.back(), "title");
}

TEST_F(UIBuilderJSON, SavedValuesComeBackToParametersAndWidgetsExceptWhereABoundHoldsThem) {
    auto set = build(everything);
    configb saved;
    set->saveState(saved);
    EXPECT_EQ(saved.size(), 10u);

    set->params()[0]->setValueFromString(L"true");
    set->params()[1]->setValueFromString(L"1");
    set->params()[4]->setValueFromString(L"changed");
    set->params()[6]->setValueFromString(L"95");
    set->params()[5]->setValueFromString(L"93");
    set->params()[7]->setValueFromString(L"0.5");
    set->params()[8]->setValueFromString(L"named");
    TestKit::pump();

    set->restoreState(saved);
    TestKit::pump();
    for (std::size_t i = 0; i < set->params().size(); ++i) {
        const auto& p = set->params()[i];
        ConfigEntryT entry;
        ASSERT_EQ(saved.in(p->getID(), entry), 0);
        EXPECT_EQ(toUTF8(p->getValueAsString()), entry.value) << p->getID().str();
    }
    EXPECT_FALSE(dynamic_cast<Checkbox*>(set->getWidget("advanced"))->getState());
    EXPECT_EQ(dynamic_cast<TitleMenuButton*>(set->getWidget("mode"))->getSelectedItem(), 0);
    EXPECT_TRUE(set->getWidget("fast")->isVisible());
    EXPECT_DOUBLE_EQ(sliderOf(set->getWidget("gain"))->getPosition(), 1.0);
    EXPECT_EQ(dynamic_cast<TitleTextBox*>(set->getWidget("best"))->getString(), L"slow");
    EXPECT_EQ(set->params()[5]->getValueAsString(), L"10");
    EXPECT_EQ(boxOf(set->getWidget("low"))->getString(), L"10");

    // Values are restored in row order, low before high, each against the other's
    // present value: high is held by a low that was restored first.
    set->params()[6]->setValueFromString(L"100");
    set->params()[5]->setValueFromString(L"98");
    configb lowFirst;
    lowFirst.set("high", ConfigEntryT("int", "90"));
    lowFirst.set("low", ConfigEntryT("int", "95"));
    set->restoreState(lowFirst);
    EXPECT_EQ(set->params()[5]->getValueAsString(), L"95") << "low is restored while high is still 100";
    EXPECT_EQ(set->params()[6]->getValueAsString(), L"95") << "then high is held by low's 95, short of its saved 90";
    EXPECT_EQ(boxOf(set->getWidget("high"))->getString(), L"95");
}

TEST_F(UIBuilderJSON, EveryTypeReadsItsKeysAndMissingKeysTakeTheirDefaults) {
    auto set = build(LR"({"p": [
      {"type": "bool", "name": "b", "legend": "B", "default": true},
      {"type": "int", "name": "i", "legend": "I", "min": 0, "max": 10, "default": 20},
      {"type": "int", "name": "same", "legend": "Same", "min": 5, "max": 5, "default": 5},
      {"type": "int", "name": "bare"},
      {"type": "float", "name": "f", "legend": "F", "min": -1.5, "max": 1.5, "default": 0.25, "tooltip": "not a number"},
      {"type": "text", "name": "t", "legend": "T", "value": "v", "hint": "h", "obfuscated": true, "tooltip": -3},
      {"type": "label", "name": "l", "legend": "Plain words"},
      {"type": "widget", "legend": "A heading", "name": "ignored"},
      {"legend": "Another heading"}
    ]})");
    ASSERT_EQ(set->params().size(), 7u);
    EXPECT_EQ(set->params()[0]->getValueAsString(), L"true");
    EXPECT_EQ(set->params()[1]->getValueAsString(), L"20") << "a default outside the range is stored as it is";
    EXPECT_DOUBLE_EQ(sliderOf(set->getWidget("i"))->getMaxValue(), 10.0);
    EXPECT_FALSE(as<int>(set->params()[2]).hasRange()) << "min equal to max is no range";
    EXPECT_EQ(set->params()[3]->getValueAsString(), L"-1");
    EXPECT_EQ(set->params()[3]->getLegend().getString(), L"");
    EXPECT_EQ(set->params()[4]->getValueType(), "double");
    EXPECT_DOUBLE_EQ(as<double>(set->params()[4]).getMinValue(), -1.5);
    EXPECT_EQ(set->params()[4]->getTooltip().resId(), UIString::kNoResource) << "a tooltip is never text";
    EXPECT_EQ(set->params()[5]->getTooltip().resId(), UIString::kNoResource) << "a negative tooltip counts as missing";
    auto* text = dynamic_cast<TitleTextBox*>(set->getWidget("t"));
    EXPECT_TRUE(text->getTextBox()->isObfuscatedDisplay());
    EXPECT_EQ(text->getTextBox()->getPlaceholder().getString(), L"h");
    EXPECT_EQ(text->getString(), L"v");
    auto* label = dynamic_cast<LinkAwareMultiLineTextBox*>(set->getWidget("l"));
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->getString(), L"Plain words");
    EXPECT_EQ(set->params()[6]->getValueAsString(), L"Plain words") << "a label's value is its text";
    EXPECT_EQ(set->getWidget("ignored"), nullptr) << "a heading takes part in nothing";

    int headings = 0;
    for (Glob* child : panel->getChildren())
        if (auto* heading = dynamic_cast<TextLabel*>(child))
            headings += heading->getText().getString() == L"A heading" || heading->getText().getString() == L"Another heading";
    EXPECT_EQ(headings, 2);

    auto tooltip = [](const char* json) { return UIBuilder::getTooltip(JSON::parse(LightweightString<char>(json))); };
    EXPECT_EQ(tooltip(R"({"tooltip": 12.9})"), 12u);
    EXPECT_EQ(tooltip(R"({"tooltip": 1e300})"), 4294967295u);
    EXPECT_EQ(UIBuilder::getTooltip(nullptr), UIString::kNoResource);
}

TEST_F(UIBuilderJSON, AChoiceHoldsItsValueWhetherOrNotAnEntryShowsIt) {
    auto set = build(LR"({"p": [
      {"type": "int", "name": "seven", "values": {"Six": 6, "Seven": 7}, "choice": "7"},
      {"type": "int", "name": "none", "values": {"Six": 6, "Eight": 8}, "choice": "7"},
      {"type": "int", "name": "first", "values": {"Six": 6, "Eight": 8}},
      {"type": "int", "name": "empty", "values": {}}
    ]})");
    auto selected = [&](const char* id) { return dynamic_cast<TitleMenuButton*>(set->getWidget(id))->getSelectedItem(); };
    EXPECT_EQ(selected("seven"), 1);
    EXPECT_EQ(selected("none"), 0) << "no entry has 7: entry 0 shows";
    EXPECT_EQ(set->params()[1]->getValueAsString(), L"7") << "and the parameter still holds 7";
    EXPECT_EQ(set->params()[2]->getValueAsString(), L"6") << "without a choice, the first value";
    EXPECT_EQ(set->params()[3]->getValueAsString(), L"4294967295") << "no entries: -1, stored unsigned";
    EXPECT_TRUE(dynamic_cast<TitleMenuButton*>(set->getWidget("empty"))->getBtn()->getItems().empty());
}

TEST_F(UIBuilderJSON, AlternativesFoldOnlyBelowTheFirstRow) {
    StandardPanel* top = makePanel(200);
    auto set = build(LR"({"p": [
      {"type": "bool", "name": "a", "legend": "A", "visible if": "m=1"},
      {"type": "bool", "name": "b", "legend": "B", "visible if": "m=2"},
      {"type": "int", "name": "m", "values": {"One": 1, "Two": 2}}
    ]})",
                     top);
    EXPECT_EQ(top->height(), 200) << "a group that starts at the first element is not folded";
    EXPECT_LT(set->getWidget("b")->getY(), set->getWidget("a")->getY());
    EXPECT_TRUE(set->getWidget("a")->isVisible());
    EXPECT_FALSE(set->getWidget("b")->isVisible());

    // Two alternatives naming the same value are not a group.
    StandardPanel* same = makePanel(200);
    build(LR"({"p": [
      {"type": "int", "name": "m", "values": {"One": 1, "Two": 2}},
      {"type": "bool", "name": "a", "visible if": "m=1"},
      {"type": "bool", "name": "b", "visible if": "m=1"}
    ]})",
          same);
    EXPECT_EQ(same->height(), 200);
}

TEST_F(UIBuilderJSON, BadDescriptionsBuildLessAndNeverFail) {
    const int children = static_cast<int>(panel->numChildren());
    auto none = build(L"{\"p\": [ {\"type\": \"bool\", ");
    ASSERT_TRUE(none);
    EXPECT_TRUE(none->params().empty());
    EXPECT_EQ(static_cast<int>(panel->numChildren()), children);
    EXPECT_TRUE(UIBuilder::buildFromJSON(LightweightString<wchar_t>(L"{\"p\": [{\"type\": \"bool\", \"name\": \"x\"}]}"), nullptr)->params().empty());

    // Two children at the root: not countable, but built from the first.
    auto twoChildren = JSON::parse(LightweightString<char>(R"({"p": [{"type": "bool", "name": "x"}], "q": [{"type": "bool", "name": "y"}]})"));
    EXPECT_EQ(UIBuilder::getNumParams(twoChildren), 0u);
    auto set = UIBuilder::buildFromJSON(twoChildren, panel);
    ASSERT_EQ(set->params().size(), 1u);
    EXPECT_EQ(set->params()[0]->getID(), "x");
    EXPECT_EQ(UIBuilder::getNumParams(JSON::parse(LightweightString<char>(R"({"p": [{}, {}, {}]})"))), 3u);
    EXPECT_EQ(UIBuilder::getNumParams(nullptr), 0u);

    // Unknown ids: the row goes inactive at the first change; a bound on nothing passes.
    auto odd = build(LR"({"p": [
      {"type": "bool", "name": "x", "legend": "X"},
      {"type": "bool", "name": "x", "legend": "X again"},
      {"type": "int", "name": "n", "min": 0, "max": 10, "default": 3, "active if": "ghost=1", "must not be lower than": "ghost", "visible if": "ghost=1"}
    ]})",
                     makePanel(200));
    ASSERT_EQ(odd->params().size(), 3u) << "both rows of a duplicate id are made";
    EXPECT_TRUE(sliderOf(odd->getWidget("n"))->isActive());
    EXPECT_TRUE(odd->getWidget("n")->isVisible()) << "a visible-if on nothing is dropped";
    odd->params()[2]->setValueFromString(L"-5");
    EXPECT_EQ(odd->params()[2]->getValueAsString(), L"0") << "clamped by its range, not by the missing bound";
    EXPECT_FALSE(sliderOf(odd->getWidget("n"))->isActive()) << "a slider row passes its state to its controls";
}

TEST_F(UIBuilderJSON, AnAdvancingTextSendsThePanelsMainMessageOnReturn) {
    struct Host : StandardPanel {
        using StandardPanel::StandardPanel;
        int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override {
            if (message == doItMsg) ++doIts;
            return StandardPanel::handleMessageEvent(message, sender);
        }
        int doIts = 0;
    };
    auto* host = TestKit::realize(new Host(StandardPanel::InitArgs(400, 100)), {700, 500});
    auto set = build(LR"({"p": [{"type": "text", "name": "who", "legend": "Who", "advance": true}]})", host);
    typeInto(dynamic_cast<TitleTextBox*>(set->getWidget("who"))->getTextBox(), L"me");
    EXPECT_EQ(host->doIts, 1);
    EXPECT_EQ(set->params()[0]->getValueAsString(), L"me");
}

TEST_F(UIBuilderJSON, ALabelRowShowsItsMarkUpAndIsAsTallAsTheLinesItPaints) {
    // A plain text just wider than the line the box wraps at, though narrower than the row.
    const Glib::FontDesc font = Glib::getDefaultFont();
    const int wrap = MultiLineTextBox::calcWrapWidth(panel->getUserArea().width());
    std::wstring plain = L"Proxies are written beside the media and masters go to the export folder";
    while (Glib::TextLayout(LightweightString<wchar_t>(plain), font).width() <= wrap) plain += L"i";
    const std::wstring json = LR"({"p": [{"type": "label", "name": "plain", "legend": ")" + plain +
                              LR"("}, {"type": "label", "name": "two", "legend": "<p>First <b>paragraph</b></p><p>Second &lt;one&gt;</p>"}]})";
    auto set = build(json.c_str());
    for (const char* id : {"plain", "two"}) {
        auto* row = dynamic_cast<LinkAwareMultiLineTextBox*>(set->getWidget(id));
        ASSERT_NE(row, nullptr);
        EXPECT_EQ(row->numDisplayLines(), 2) << id;
        const int line = Glib::TextLayout::emptyLineHeight(font), bottom = row->height() - row->getMargin() - 2 * line;
        ASSERT_GE(bottom, 0) << id << ": the row holds both lines";
        const std::uint32_t back = TestKit::argb(row->getPalette().window());
        int ink = 0;
        for (int y = bottom; y < bottom + line; ++y)
            for (int x = 0; x < row->width(); ++x) ink += TestKit::globPixel(row, x, y) != back;
        EXPECT_GT(ink, 20) << id << ": the last line is painted inside the row";
    }
}
