// The development panels: the editor that builds what is typed into it, and the
// example panel of "UIBuilderTest2".
#include "params/UIBuilderTestPanel.h"
#include "controls/CodeEditor.h"
#include "controls/PushButton.h"
#include "glob/GlobManager.h"
#include "platform/CommandRegistrar.h"
#include "testing/TestKit.h"

#include <gtest/gtest.h>

namespace {

class UIBuilderTestPanels : public TestKit::ScreenTest {
protected:
    template <class T>
    static std::vector<T*> roots() {
        std::vector<T*> found;
        for (Glob* g : GlobManager::instance().roots())
            if (auto* t = dynamic_cast<T*>(g)) found.push_back(t);
        return found;
    }
    static PushButton* buildButton(UIBuilderTestPanel* panel) {
        for (Glob* child : panel->getChildren())
            if (auto* b = dynamic_cast<PushButton*>(child)) return b;
        return nullptr;
    }
};

} // namespace

TEST_F(UIBuilderTestPanels, BuildShowsWhatIsTypedAndReplacesTheLastPanel) {
    ASSERT_TRUE(CommandRegistrar::invoke("makeUIBuilderTestPanel"));
    TestKit::pump();
    ASSERT_EQ(roots<UIBuilderTestPanel>().size(), 1u);
    UIBuilderTestPanel* panel = roots<UIBuilderTestPanel>()[0];
    EXPECT_EQ(panel->width(), 800);
    EXPECT_EQ(panel->getTitle().getString(), L"UIBuilder Test Panel");
    PushButton* build = buildButton(panel);
    ASSERT_NE(build, nullptr);

    panel->editor()->setText(L"{\"p\": [{\"type\": \"bool\", \"name\": \"a\", \"legend\": \"A\"}, {\"type\": \"text\", \"name\": \"b\"}]}");
    TestKit::click(TestKit::centreOf(build));
    HostPanel* first = panel->host();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->params()->params().size(), 2u);
    EXPECT_EQ(first->getTitle().getString(), L"Output");
    EXPECT_GE(first->getX(), panel->getX() + panel->width()) << "beside the editor";

    panel->editor()->setText(L"{\"p\": [{\"type\": \"int\", \"name\": \"n\"}]}");
    TestKit::click(TestKit::centreOf(build));
    ASSERT_EQ(roots<HostPanel>().size(), 1u) << "the panel built before is gone";
    EXPECT_EQ(panel->host()->params()->params().size(), 1u);

    panel->editor()->setText(L"{\"p\": [ not json");
    TestKit::click(TestKit::centreOf(build));
    EXPECT_TRUE(roots<HostPanel>().empty()) << "text that does not parse builds nothing";
}

TEST_F(UIBuilderTestPanels, TheExampleCommandOpensItsPanelInTheMiddle) {
    ASSERT_TRUE(CommandRegistrar::invoke("UIBuilderTest2"));
    TestKit::pump();
    ASSERT_EQ(roots<HostPanel>().size(), 1u);
    HostPanel* host = roots<HostPanel>()[0];
    EXPECT_EQ(host->width(), 400);
    EXPECT_EQ(host->params()->params().size(), 9u);
    EXPECT_NE(host->params()->getWidget("reset"), nullptr);
}
