// A panel's values kept in a configb and brought back, and what a restore from a
// store or text that holds nothing usable does: nothing.
#include "UIBuilderParamsTestSupport.h"
#include "params/MaxValueConstraint.h"
#include "platform/ConfigbFile.h"

#include <gtest/gtest.h>

using namespace GenericParam;
using namespace UIBuilderParamsTestSupport;

namespace {

using Strings = std::vector<std::string>;

struct Panel {
    Panel() {
        params.push_back(make<IntParam>(4, "count", L"Count", L""));
        params.push_back(make<DoubleParam>(L"Level", "level", L"", 0.25, 0.0, 1.0));
        params.push_back(make<BoolParam>(L"On", "on", L"", true));
        params.push_back(make<TextParam>(WString(L"Caf\u00e9 \u00bd"), "name", L"Name", L""));
        params.push_back(make<ChoiceParam>(L"Mode", "mode", L"", 2, std::vector<ChoiceParam::Choice>{{L"A", 1}, {L"B", 2}}));
        params.push_back(make<LabelParam>(WString(L"Read me"), "note", L"", L""));
        params.push_back(make<ActionParam>(0u, "apply", L"Apply", L""));
        set = Zn::makePtr<UIBuilder::Params>(params, UIBuilder::WidgetMap{}, std::vector<Zn::Ptr<UIBuilder::iPostCondition>>{});
        set->addListener(listenerInto(heard));
    }
    Strings values() const {
        Strings v;
        for (const auto& p : params) v.push_back(toUTF8(p->getValueAsString()).str());
        return v;
    }
    void changeAll() {
        params[0]->setValueFromString(L"9");
        params[1]->setValueFromString(L"0.75");
        params[2]->setValueFromString(L"false");
        params[3]->setValueFromString(L"");
        params[4]->setValueFromString(L"1");
        params[5]->setValueFromString(L"Changed");
    }

    UIBuilder::ParamList params;
    Zn::Ptr<UIBuilder::Params> set;
    Strings heard;
};

} // namespace

TEST(ParamsState, ASavedStoreHoldsOneEntryPerIdAndNothingItHeldBefore) {
    Panel panel;
    panel.params.push_back(make<IntParam>(1, "count", L"Again", L""));
    auto set = Zn::makePtr<UIBuilder::Params>(panel.params, UIBuilder::WidgetMap{}, std::vector<Zn::Ptr<UIBuilder::iPostCondition>>{});
    configb config;
    config.set("stale", ConfigEntryT("int", "1"));
    set->saveState(config);
    ASSERT_EQ(config.size(), 7u) << "eight parameters, seven ids; the stale entry is gone";
    EXPECT_FALSE(config.has("stale"));
    EXPECT_EQ(config.get("count"), LightweightString<char>("1")) << "of two parameters with one id, the later one's value";
    ConfigEntryT entry;
    ASSERT_EQ(config.in("level", entry), 0);
    EXPECT_EQ(entry, ConfigEntryT("double", "0.25"));
    EXPECT_EQ(config.get("on"), LightweightString<char>("true"));
    EXPECT_EQ(config.get("name"), LightweightString<char>("Caf\xC3\xA9 \xC2\xBD")) << "text is kept as UTF-8";
    ASSERT_EQ(config.in("mode", entry), 0);
    EXPECT_EQ(entry, ConfigEntryT("int", "2")) << "a choice saves its value, not its index";
    EXPECT_EQ(config.get("note"), LightweightString<char>("Read me"));
    ASSERT_EQ(config.in("apply", entry), 0);
    EXPECT_EQ(entry, ConfigEntryT("action", "0"));
    EXPECT_TRUE(panel.heard.empty()) << "saving changes nothing";
}

TEST(ParamsState, ARestoreBringsBackEveryValueThroughTheOrdinaryRoad) {
    Panel panel;
    const Strings saved = panel.values();
    configb config;
    panel.set->saveState(config);
    panel.changeAll();
    ASSERT_NE(panel.values(), saved);
    panel.heard.clear();

    panel.set->restoreState(config);
    EXPECT_EQ(panel.values(), saved);
    EXPECT_EQ(panel.heard, (Strings{"count", "level", "on", "name", "mode", "note", "apply"})) << "each restored parameter told once, in row order";
}

TEST(ParamsState, MissingKeysAndStrayKeysAndTypeWordsAreLeftAlone) {
    Panel panel;
    panel.changeAll();
    const Strings before = panel.values();
    panel.heard.clear();
    configb config;
    config.set("level", ConfigEntryT("text", "0.5"));
    config.set("nobody", ConfigEntryT("int", "3"));
    panel.set->restoreState(config);
    Strings expected = before;
    expected[1] = "0.5";
    EXPECT_EQ(panel.values(), expected) << "the type word is not compared; the other parameters keep their values";
    EXPECT_EQ(panel.heard, Strings{"level"});

    panel.heard.clear();
    panel.set->restoreState(configb());
    EXPECT_EQ(panel.values(), expected) << "an empty store changes nothing";
    EXPECT_TRUE(panel.heard.empty()) << "and sends nothing";
}

TEST(ParamsState, ABoundRestoredLaterHoldsAValueBackUntilTheNextRestore) {
    UIBuilder::ParamList params;
    params.push_back(make<IntParam>(8, "low", L"Low", L""));
    params.push_back(make<IntParam>(10, "high", L"High", L""));
    params[0]->addValueConstraint(Zn::Ptr<iValueConstraint>(new MaxValueConstraint(params[1])));
    auto set = Zn::makePtr<UIBuilder::Params>(params, UIBuilder::WidgetMap{}, std::vector<Zn::Ptr<UIBuilder::iPostCondition>>{});
    configb config;
    set->saveState(config);

    params[1]->setValueFromString(L"5");
    params[0]->setValueFromString(L"3");
    set->restoreState(config);
    EXPECT_EQ(as<int>(params[0]).getValue(), 5) << "low is restored first, against high's old value";
    EXPECT_EQ(as<int>(params[1]).getValue(), 10);
    set->restoreState(config);
    EXPECT_EQ(as<int>(params[0]).getValue(), 8) << "with high in place, low comes back whole";
}

TEST(ParamsState, RestoringFromTextThatHoldsNoStoreChangesNothing) {
    Panel panel;
    configb saved;
    panel.set->saveState(saved);
    const LightweightString<char> text = ConfigbFile::toText(saved);
    panel.changeAll();
    const Strings before = panel.values();
    panel.heard.clear();

    const std::vector<LightweightString<char>> unusable = {
        "", "garbage", "{", "[]", "\x01\x02\xFF", text.substr(0, text.size() / 3), text.substr(0, text.size() - 2)};
    for (const auto& bad : unusable) {
        configb config;
        EXPECT_FALSE(ConfigbFile::fromText(bad, config));
        panel.set->restoreState(config);
        EXPECT_EQ(panel.values(), before) << bad;
        EXPECT_TRUE(panel.heard.empty()) << bad;
    }

    configb config;
    ASSERT_TRUE(ConfigbFile::fromText(text, config));
    panel.set->restoreState(config);
    Panel fresh;
    EXPECT_EQ(panel.values(), fresh.values()) << "the whole text restores what was saved";
}
