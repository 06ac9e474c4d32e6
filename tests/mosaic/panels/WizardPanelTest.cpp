#include "panels/WizardPanel.h"
#include "core/FunctionCallback.h"
#include "core/Utf8.h"
#include "testkit/TestKit.h"

#include <string>
#include <vector>

namespace {

class TestPage : public WizardStagePanel {
public:
    using WizardStagePanel::WizardStagePanel;
    bool canAdvance() const override { return ready; }
    bool requestCompletion() override {
        ++*asked;
        return mayLeave;
    }
    bool ready = true;
    bool mayLeave = true;
    int* asked = nullptr;
};

// A stage that records every page it makes.
class TestStage : public iWizardStage {
public:
    explicit TestStage(const wchar_t* title, const wchar_t* forward = nullptr) : title_(title), forward_(forward) {}
    WizardStagePanel* makePage(StandardPanel& wizard, const XY<int>& size, const WidgetPosition& position) override {
        TestPage::InitArgs args(static_cast<unsigned short>(size.x), static_cast<unsigned short>(size.y));
        auto* page = wizard.createWidget<TestPage>(args, position);
        page->ready = ready;
        page->asked = &asked;
        made.emplace_back(page);
        return page;
    }
    UIString getTitle() const override { return UIString(title_); }
    UIString getForwardText() const override { return forward_ ? UIString(forward_) : iWizardStage::getForwardText(); }
    TestPage* last() const { return made.empty() ? nullptr : made.back().get(); }

    std::vector<GlobHandle<TestPage>> made;
    bool ready = true;
    // How many times this stage's pages were asked to let the user leave.
    int asked = 0;

private:
    const wchar_t* title_;
    const wchar_t* forward_;
};

class Wizard : public TestKit::ScreenTest {
protected:
    WizardPanel* make(int stages, bool withCompletion = true) {
        WizardPanel::InitArgs args(500, 350);
        const wchar_t* titles[] = {L"First", L"Second", L"Third"};
        for (int i = 0; i < stages; ++i) {
            stage[i] = Zn::Ptr<TestStage>(new TestStage(titles[i], i == 1 ? L"Onwards to the end" : nullptr));
            args.stages.push_back(stage[i]);
        }
        if (withCompletion)
            args.completion =
                Zn::Ptr<iCallbackBase<int, NotifyMsg>>(new FunctionCallback<NotifyMsg, int>([this](const NotifyMsg&) { return ++completed; }));
        wizard = TestKit::realize(new WizardPanel(args), {100, 100});
        handle.reset(wizard);
        TestKit::pump();
        return wizard;
    }
    void press(const char* name) {
        TestKit::click(name);
        TestKit::pump();
    }
    static std::string title(const WizardPanel* w) { return toUTF8(w->getTitle().getString()).str(); }

    Zn::Ptr<TestStage> stage[3];
    WizardPanel* wizard = nullptr;
    GlobHandle<WizardPanel> handle;
    int completed = 0;
};

} // namespace

TEST_F(Wizard, ThreeStagesAreWalkedForwardsAndBackByClicksAndFinishOnce) {
    make(3);
    EXPECT_EQ(title(wizard), "1/3 : First");
    EXPECT_FALSE(wizard->backButton()->isActive());
    EXPECT_TRUE(wizard->nextButton()->hasIcon());
    EXPECT_EQ(toUTF8(wizard->nextButton()->getLabel().getString()).str(), "Next");

    press("wizardNext");
    EXPECT_EQ(wizard->getStage(), 1);
    EXPECT_EQ(title(wizard), "2/3 : Second");
    EXPECT_TRUE(wizard->backButton()->isActive());
    EXPECT_EQ(wizard->nextButton()->width(), wizard->backButton()->width()) << "a long caption widens both";
    EXPECT_GT(wizard->nextButton()->width(), Button::calcWidth(L"Onwards to the end"));
    EXPECT_FALSE(stage[0]->made[0]) << "the page left behind has gone";

    press("wizardBack");
    EXPECT_EQ(wizard->getStage(), 0);
    ASSERT_EQ(stage[0]->made.size(), 2u);
    EXPECT_EQ(wizard->getPage(), stage[0]->last()) << "a fresh page on each visit";
    EXPECT_EQ(wizard->nextButton()->width(), wizard->backButton()->width());

    press("wizardNext");
    press("wizardNext");
    EXPECT_EQ(title(wizard), "3/3 : Third");
    EXPECT_FALSE(wizard->nextButton()->hasIcon()) << "the last stage's Next has no icon";
    stage[2]->last()->mayLeave = false;
    press("wizardNext");
    EXPECT_EQ(stage[2]->asked, 0) << "the last page is not asked";
    EXPECT_EQ(completed, 1);
    EXPECT_FALSE(handle) << "the wizard deletes itself";
}

TEST_F(Wizard, APageCanVetoLeavingDisableNextAndAskToMoveOn) {
    make(3);
    TestPage* page = stage[0]->last();
    page->mayLeave = false;
    press("wizardNext");
    EXPECT_EQ(stage[0]->asked, 1);
    EXPECT_EQ(wizard->getStage(), 0);
    EXPECT_EQ(wizard->getPage(), page) << "the same page stays";
    EXPECT_EQ(title(wizard), "1/3 : First");

    stage[1]->ready = false;
    page->mayLeave = true;
    press("wizardNext");
    TestPage* second = stage[1]->last();
    EXPECT_FALSE(wizard->nextButton()->isActive());
    press("wizardNext");
    EXPECT_EQ(wizard->getStage(), 1) << "an inactive Next does nothing";
    second->ready = true;
    EXPECT_FALSE(wizard->nextButton()->isActive()) << "not until the page says so";
    second->notify(WizardStagePanel::Event::kRefresh);
    TestKit::pump();
    EXPECT_TRUE(wizard->nextButton()->isActive());

    GlobHandle<TestPage> sender(second);
    second->notify(WizardStagePanel::Event::kAdvance);
    EXPECT_TRUE(sender) << "the page that asks lives through its own call";
    TestKit::pump();
    EXPECT_EQ(wizard->getStage(), 2);
    EXPECT_FALSE(sender);
    wizard->getPage()->notify(42);
    TestKit::pump();
    EXPECT_EQ(wizard->getStage(), 2) << "other kinds are ignored";
}

TEST_F(Wizard, OneStageHasNoPrefixNoBackAndWithoutACallbackStaysOpen) {
    make(1, false);
    EXPECT_EQ(title(wizard), "First");
    EXPECT_FALSE(wizard->backButton()->isVisible());
    EXPECT_FALSE(wizard->nextButton()->hasIcon());
    press("wizardNext");
    EXPECT_TRUE(handle);
    wizard->setStage(5, kRedraw);
    EXPECT_EQ(wizard->getStage(), 0) << "an index out of range is ignored";
    EXPECT_EQ(wizard->makeTitle(9).getString(), WString());
}
