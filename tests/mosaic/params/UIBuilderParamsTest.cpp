// Where the changes of a panel's parameters meet: listeners, post-conditions,
// actions, and the lifetime of the set against the parameters it wires.
#include "UIBuilderParamsTestSupport.h"
#include "controls/StandardPanel.h"
#include "params/ActiveConstraint.h"
#include "params/MaxValueConstraint.h"
#include "params/MinValueConstraint.h"
#include "testing/TestKit.h"

#include <gtest/gtest.h>

using namespace GenericParam;
using namespace UIBuilderParamsTestSupport;

namespace {

using Strings = std::vector<std::string>;

class OwnHandler : public iValueChangeHandler {
public:
    explicit OwnHandler(Strings& journal) : journal_(journal) {}
    void valueChanged(const LightweightString<char>& id, const LightweightString<wchar_t>&) override { journal_.push_back("own " + id.str()); }

private:
    Strings& journal_;
};

// Counts its own destruction, to see that the parameters holding it were freed.
class Tracker : public iValueChangeHandler {
public:
    explicit Tracker(int& freed) : freed_(freed) {}
    ~Tracker() override { ++freed_; }
    void valueChanged(const LightweightString<char>&, const LightweightString<wchar_t>&) override {}

private:
    int& freed_;
};

UIBuilder::ParamList threeParams() {
    UIBuilder::ParamList params;
    params.push_back(make<IntParam>(1, "gain", L"Gain", L""));
    params.push_back(make<BoolParam>(L"On", "on", L"", false));
    params.push_back(make<TextParam>(WString(L"clip"), "name", L"Name", L""));
    return params;
}

Zn::Ptr<ActionParam> actionDoing(std::function<bool(const ActionParam::CallbackData&)> f) {
    Zn::Ptr<ActionParam> action(new ActionParam(0, "apply", L"Apply", L""));
    action->callback = Zn::Ptr<iCallbackBase<bool, ActionParam::CallbackData>>(new FunctionCallback<ActionParam::CallbackData, bool>(std::move(f)));
    return action;
}

class UIBuilderParams : public TestKit::ScreenTest {};

} // namespace

TEST_F(UIBuilderParams, EachChangeIsEvaluatedThenToldToEveryListenerOnceByIdAlone) {
    Strings journal;
    UIBuilder::ParamList params = threeParams();
    params[0]->addChangeHandler(Zn::Ptr<iValueChangeHandler>(new OwnHandler(journal)));
    params[0]->addValueConstraint(Zn::Ptr<iValueConstraint>(
        new ParamTestSupport::Constraint([](const WString& v) { return DataConvert::convert<WString, int>(v) > 10 ? WString(L"10") : v; })));
    Zn::Ptr<Snapshot> snapshot(new Snapshot(journal));
    auto set = Zn::makePtr<UIBuilder::Params>(params, UIBuilder::WidgetMap{}, std::vector<Zn::Ptr<UIBuilder::iPostCondition>>{snapshot});
    set->addListener(listenerInto(journal, "first "));
    set->addListener(listenerInto(journal, "second "));
    set->addListener(nullptr);

    as<int>(params[0]).server() = 50;
    EXPECT_EQ(journal, (Strings{"own gain", "evaluate", "first gain", "second gain"}))
        << "the parameter's own handlers first, then the post-conditions, then the listeners in order, with no payload";
    EXPECT_EQ(snapshot->seen.back(), "gain=10 on=false name=clip") << "post-conditions see the stored, constrained value";

    journal.clear();
    params[1]->setValueFromString(L"true");
    params[2]->setValueFromString(L"other");
    EXPECT_EQ(journal, (Strings{"evaluate", "first on", "second on", "evaluate", "first name", "second name"}));
    EXPECT_EQ(snapshot->seen.back(), "gain=10 on=true name=other");

    journal.clear();
    EXPECT_TRUE(params[0]->reset());
    EXPECT_EQ(journal, (Strings{"own gain", "evaluate", "first gain", "second gain"}));
    journal.clear();
    EXPECT_FALSE(params[0]->reset()) << "at the default already";
    EXPECT_TRUE(journal.empty()) << "no change, no notice";
}

TEST_F(UIBuilderParams, ActiveConstraintsFollowEveryChangeOfAnyParameter) {
    TestKit::Owned<StandardPanel> panel(new StandardPanel(StandardPanel::InitArgs(300, 200)));
    StandardPanel::InitArgs rowArgs(0, 20);
    Glob* level = panel->createWidget<StandardPanel>(rowArgs, Glob::UserTopLeft(0, 0));
    Glob* orphan = panel->createWidget<StandardPanel>(rowArgs, Glob::UserTopLeft(0, 30));

    UIBuilder::ParamList params;
    params.push_back(make<ChoiceParam>(L"Mode", "mode", L"", 1, std::vector<ChoiceParam::Choice>{{L"A", 1}, {L"B", 2}}));
    params.push_back(make<BoolParam>(L"On", "on", L"", true));
    params.push_back(make<DoubleParam>(L"Level", "level", L"", 0.5, 0.0, 1.0));
    Zn::Ptr<UIBuilder::iPostCondition> levelActive(new ActiveConstraint(Zn::AttribValuePair::vecFromString("mode:2,on:true", ':', ','), level));
    Zn::Ptr<UIBuilder::iPostCondition> orphanActive(new ActiveConstraint(Zn::AttribValuePair::vecFromString("missing:", ':', ','), orphan));
    auto set = Zn::makePtr<UIBuilder::Params>(params, UIBuilder::WidgetMap{{"level", level}},
                                              std::vector<Zn::Ptr<UIBuilder::iPostCondition>>{levelActive, orphanActive});
    EXPECT_EQ(set->getWidget("level"), level);
    EXPECT_EQ(set->getWidget("mode"), nullptr);

    params[0]->setValueFromString(L"2");
    EXPECT_TRUE(level->isActive()) << "both conditions hold";
    EXPECT_FALSE(orphan->isActive()) << "a condition on an id that no parameter has never holds";
    params[1]->setValueFromString(L"false");
    EXPECT_FALSE(level->isActive());
    params[2]->setValueFromString(L"0.7");
    EXPECT_FALSE(level->isActive()) << "re-evaluated on a change of a parameter it does not depend on, still off";
    params[1]->setValueFromString(L"true");
    EXPECT_TRUE(level->isActive());
    params[0]->setValueFromString(L"1");
    EXPECT_FALSE(level->isActive());
}

TEST_F(UIBuilderParams, AnActionIsToldOnceAfterwardsOnlyWhenItSaysItChangedSomething) {
    Strings journal;
    UIBuilder::ParamList params = threeParams();
    params[0]->addChangeHandler(Zn::Ptr<iValueChangeHandler>(new OwnHandler(journal)));
    Zn::Ptr<Snapshot> snapshot(new Snapshot(journal));
    auto set = Zn::makePtr<UIBuilder::Params>(params, UIBuilder::WidgetMap{}, std::vector<Zn::Ptr<UIBuilder::iPostCondition>>{snapshot});
    set->addListener(listenerInto(journal));

    bool answer = true;
    Zn::Ptr<iObject> context(new BoolParam(L"", "context", L"", false));
    auto action = actionDoing([&](const ActionParam::CallbackData& d) {
        EXPECT_EQ(d.params->size(), 3u);
        EXPECT_TRUE(d.context == context);
        (*d.params)[0]->setValueFromString(L"7");
        (*d.params)[1]->setValueFromString(L"true");
        (*d.params)[2]->setValueFromString(L"changed");
        return answer;
    });
    action->context = context;

    EXPECT_EQ(set->handleActionParam(NotifyMsg("applyMsg", action)), 0);
    EXPECT_EQ(journal, (Strings{"own gain", "evaluate", "applyMsg+payload"}))
        << "the parameters' own handlers run during the action; then one evaluation and one notice, with the action's message";
    EXPECT_EQ(snapshot->seen.back(), "gain=7 on=true name=changed");

    journal.clear();
    answer = false;
    set->handleActionParam(NotifyMsg("applyMsg", action));
    EXPECT_EQ(journal, Strings{"own gain"}) << "the action changed values but said it did not: the set stays silent";
    EXPECT_EQ(as<int>(params[0]).getValue(), 7);

    journal.clear();
    params[2]->setValueFromString(L"again");
    EXPECT_EQ(journal, (Strings{"evaluate", "name"})) << "notices resume after the action";
}

TEST_F(UIBuilderParams, AMessageWithNoRunnableActionReachesNothing) {
    Strings journal;
    UIBuilder::ParamList params = threeParams();
    auto set = Zn::makePtr<UIBuilder::Params>(params, UIBuilder::WidgetMap{}, std::vector<Zn::Ptr<UIBuilder::iPostCondition>>{});
    set->addListener(listenerInto(journal));
    EXPECT_EQ(set->handleActionParam(NotifyMsg("noPayload")), 0);
    EXPECT_EQ(set->handleActionParam(NotifyMsg("wrongPayload", params[1])), 0);
    Zn::Ptr<ActionParam> noCallback(new ActionParam(0, "none", L"None", L""));
    EXPECT_EQ(set->handleActionParam(NotifyMsg("noCallback", noCallback)), 0);
    EXPECT_TRUE(journal.empty());
    params[0]->setValueFromString(L"3");
    EXPECT_EQ(journal, Strings{"gain"}) << "and the set still hears changes";
}

TEST_F(UIBuilderParams, AListenerOrActionMayDropTheLastReferenceToTheSet) {
    Strings journal;
    UIBuilder::ParamList params = threeParams();
    Zn::Ptr<UIBuilder::Params> set =
        Zn::makePtr<UIBuilder::Params>(params, UIBuilder::WidgetMap{}, std::vector<Zn::Ptr<UIBuilder::iPostCondition>>{});
    set->addListener(UIBuilder::Params::Listener(new FunctionCallback<NotifyMsg, int>(std::function<int(const NotifyMsg&)>([&](const NotifyMsg&) {
        set = nullptr; // the owner closes the panel
        return 0;
    }))));
    set->addListener(listenerInto(journal));
    params[0]->setValueFromString(L"2");
    EXPECT_FALSE(set);
    EXPECT_EQ(journal, Strings{"gain"}) << "the set lived to the end of the notice";
    journal.clear();
    params[0]->setValueFromString(L"3");
    EXPECT_TRUE(journal.empty()) << "the parameters outlive the set and reach nothing";

    set = Zn::makePtr<UIBuilder::Params>(params, UIBuilder::WidgetMap{}, std::vector<Zn::Ptr<UIBuilder::iPostCondition>>{});
    auto closing = actionDoing([&](const ActionParam::CallbackData&) {
        set = nullptr;
        return true;
    });
    set->handleActionParam(NotifyMsg("close", closing));
    EXPECT_FALSE(set);
}

TEST_F(UIBuilderParams, TheSetFreesParametersBoundToEachOther) {
    int freed = 0;
    {
        UIBuilder::ParamList params;
        params.push_back(make<IntParam>(2, "in", L"In", L""));
        params.push_back(make<IntParam>(8, "out", L"Out", L""));
        params[0]->addValueConstraint(Zn::Ptr<iValueConstraint>(new MaxValueConstraint(params[1])));
        params[1]->addValueConstraint(Zn::Ptr<iValueConstraint>(new MinValueConstraint(params[0])));
        params[0]->addChangeHandler(Zn::Ptr<iValueChangeHandler>(new Tracker(freed)));
        params[1]->addChangeHandler(Zn::Ptr<iValueChangeHandler>(new Tracker(freed)));
        auto set = Zn::makePtr<UIBuilder::Params>(params, UIBuilder::WidgetMap{}, std::vector<Zn::Ptr<UIBuilder::iPostCondition>>{});
        params[0]->setValueFromString(L"9");
        EXPECT_EQ(as<int>(params[0]).getValue(), 8) << "the bounds work while the set lives";
    }
    EXPECT_EQ(freed, 2) << "both parameters went with the set";
}

TEST(UIBuilder, FindParamGivesTheFirstParameterWithTheIdOrNull) {
    TestBuilder builder;
    EXPECT_FALSE(builder.findParam("gain")) << "nothing made yet";
    auto first = make<IntParam>(1, "gain", L"Gain", L"");
    auto second = make<DoubleParam>(L"Gain", "gain", L"", 2.0, 0.0, 4.0);
    auto other = make<BoolParam>(L"On", "on", L"", true);
    Glob* const firstRow = reinterpret_cast<Glob*>(0x10);
    Glob* const secondRow = reinterpret_cast<Glob*>(0x20);
    builder.recordRow(first, firstRow);
    builder.recordRow(other, nullptr);
    builder.recordRow(second, secondRow);
    builder.recordRow(nullptr, secondRow);
    EXPECT_TRUE(builder.findParam("gain") == first);
    EXPECT_TRUE(builder.findParam("on") == other);
    EXPECT_FALSE(builder.findParam("gai"));
    EXPECT_FALSE(builder.findParam(""));

    std::vector<std::string> journal;
    Zn::Ptr<Snapshot> snapshot(new Snapshot(journal));
    builder.addPostCondition(snapshot);
    builder.addPostCondition(nullptr);
    auto set = builder.makeParams();
    ASSERT_EQ(set->params().size(), 3u) << "every row's parameter, in row order";
    EXPECT_TRUE(set->params()[2] == second);
    EXPECT_EQ(set->getWidget("gain"), firstRow) << "a second row for an id leaves the first";
    other->setValueFromString(L"false");
    EXPECT_EQ(journal, Strings{"evaluate"}) << "the set took the builder's post-conditions";
}
