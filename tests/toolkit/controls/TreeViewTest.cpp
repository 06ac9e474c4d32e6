#include "ListsTestSupport.h"

#include "controls/TreeView.h"

#include <map>

using TestKit::argb;
using TestKit::Owned;
using TestKit::pixelNear;

namespace {

using Id = iTreeViewAdaptor::ItemId;

// A tree held in maps, which a test can change under the view.
class MapTree : public iTreeViewAdaptor {
public:
    std::vector<ItemId> getChildren(ItemId parent) override {
        auto it = children.find(parent);
        return it == children.end() ? std::vector<ItemId>() : it->second;
    }
    LightweightString<wchar_t> getItemText(ItemId item) override { return names[item]; }
    void handleItemSelected(ItemId item) override { selected.push_back(item); }
    void handleItemActivated(ItemId item) override { activated.push_back(item); }

    std::map<ItemId, std::vector<ItemId>> children{{0, {1, 2, 3}}, {1, {11, 12}}, {11, {111, 112}}, {2, {21}}};
    std::map<ItemId, LightweightString<wchar_t>> names{{1, L"Media"},   {2, L"Effects"}, {3, L"Empty"}, {11, L"Clips"},
                                                       {12, L"Stills"}, {111, L"A"},     {112, L"B"},   {21, L"Blur"}};
    std::vector<ItemId> selected, activated;
};

class TreeViewTest : public ::testing::Test {
protected:
    void SetUp() override {
        host = std::make_unique<Owned<MessageLog>>(makeHost(300, 300));
        row = UifStd::instance().getRowHeight();
        TreeView::InitArgs a(220, static_cast<unsigned short>(6 * row), &tree);
        view = addTo<TreeView>(host->get(), a, Glob::BottomLeft(10, 10));
    }
    void TearDown() override {
        host.reset();
        TestKit::reset();
    }
    std::vector<Id> shown() const {
        std::vector<Id> ids;
        for (int i = 0; i < view->numItems(); ++i) ids.push_back(view->itemAtRow(i));
        return ids;
    }
    // The centre of a row's opener, on the screen.
    XY<int> opener(int r) const {
        BoxInt b = view->itemBox(r);
        int x = b.x1 + view->depthOfRow(r) * UifStd::instance().getTextIndent() + row / 2;
        return TestKit::screenPointOf(view, {x, (b.y1 + b.y2) / 2});
    }
    XY<int> text(int r) const {
        BoxInt b = view->itemBox(r);
        return TestKit::screenPointOf(view, {b.x2 - 10, (b.y1 + b.y2) / 2});
    }

    MapTree tree;
    std::unique_ptr<Owned<MessageLog>> host;
    TreeView* view = nullptr;
    int row = 0;
};

} // namespace

TEST_F(TreeViewTest, OpenersShowAndHideChildrenAtTheirDepth) {
    EXPECT_EQ(shown(), std::vector<Id>({1, 2, 3}));
    EXPECT_EQ(view->getItem(0), LightweightString<wchar_t>(L"Media"));
    TestKit::click(opener(0));
    EXPECT_TRUE(view->isExpanded(1));
    EXPECT_EQ(shown(), std::vector<Id>({1, 11, 12, 2, 3}));
    EXPECT_EQ(view->depthOfRow(1), 1);
    TestKit::click(opener(1));
    EXPECT_EQ(shown(), std::vector<Id>({1, 11, 111, 112, 12, 2, 3}));
    EXPECT_EQ(view->depthOfRow(2), 2);
    // A click on the opener does not select the row.
    EXPECT_EQ(view->getSelectedItem(), 0u);

    // Closing a parent hides the open child too; opening it again restores it.
    TestKit::click(opener(0));
    EXPECT_EQ(shown(), std::vector<Id>({1, 2, 3}));
    view->expand(1);
    EXPECT_EQ(shown(), std::vector<Id>({1, 11, 111, 112, 12, 2, 3}));
    // An item with no children has no opener: a click there selects it.
    view->ensureVisible(6);
    TestKit::pump();
    TestKit::click(opener(6));
    EXPECT_EQ(view->getSelectedItem(), 3u);
    EXPECT_FALSE(view->isExpanded(3));
}

TEST_F(TreeViewTest, OpenersAreDrawnPointingRightWhenClosedAndDownWhenOpen) {
    const Palette& p = view->getPalette();
    view->expand(1);
    TestKit::pump();
    auto probe = [&](int r) {
        BoxInt b = view->itemBox(r);
        int half = row / 4, x0 = b.x1 + view->depthOfRow(r) * UifStd::instance().getTextIndent();
        int cx = x0 + row / 2, cy = b.y1 + row / 2, base = (half + 1) / 2;
        // Ink at the left end of a downward arrow's top edge; a right arrow does not reach there.
        return TestKit::globPixel(view, cx - half, cy + base);
    };
    EXPECT_EQ(probe(0), argb(p.text()));
    EXPECT_EQ(probe(1), argb(p.childWindow(kChildList)));
    // The child's opener is indented by one step.
    BoxInt b = view->itemBox(1);
    int indent = UifStd::instance().getTextIndent();
    EXPECT_TRUE(pixelNear(view, b.x1 + indent + row / 2 - 1, b.y1 + row / 2, argb(p.text()), 1));
    EXPECT_TRUE(pixelNear(view, b.x1 + row / 2 - 1, b.y1 + row / 2, argb(p.childWindow(kChildList)), 1));
}

TEST_F(TreeViewTest, ArrowKeysOpenCloseAndWalkToParentsAndChildren) {
    TestKit::click(text(0));
    ASSERT_EQ(view->getSelectedItem(), 1u);
    TestKit::pressKey(Keys::Right);
    EXPECT_TRUE(view->isExpanded(1));
    EXPECT_EQ(view->getSelectedItem(), 1u);
    TestKit::pressKey(Keys::Right);
    EXPECT_EQ(view->getSelectedItem(), 11u);
    TestKit::pressKey(Keys::Right);
    TestKit::pressKey(Keys::Right);
    EXPECT_EQ(view->getSelectedItem(), 111u);
    TestKit::pressKey(Keys::Left);
    EXPECT_EQ(view->getSelectedItem(), 11u);
    TestKit::pressKey(Keys::Left);
    EXPECT_FALSE(view->isExpanded(11));
    TestKit::pressKey(Keys::Left);
    EXPECT_EQ(view->getSelectedItem(), 1u);
    TestKit::pressKey(Keys::Down);
    TestKit::pressKey(Keys::Down);
    EXPECT_EQ(view->getSelectedItem(), 12u);
    TestKit::pressKey(Keys::End);
    EXPECT_EQ(view->getSelectedItem(), 3u);
    // Right on a leaf and Left at the top level stay put.
    TestKit::pressKey(Keys::Right);
    TestKit::pressKey(Keys::Left);
    EXPECT_EQ(view->getSelectedItem(), 3u);
}

TEST_F(TreeViewTest, ChoosingTellsTheAdaptorThenTheOwnerAndActivationToggles) {
    TestKit::click(text(1));
    EXPECT_EQ(tree.selected, std::vector<Id>({2}));
    EXPECT_EQ(host->get()->count(ScrollList::selectionChangedMsg), 1);
    TestKit::click(text(1));
    EXPECT_EQ(tree.activated, std::vector<Id>({2}));
    EXPECT_TRUE(view->isExpanded(2));
    EXPECT_EQ(host->get()->count(ScrollList::itemActivatedMsg), 1);
    TestKit::pressKey(Keys::Return);
    EXPECT_FALSE(view->isExpanded(2));
    EXPECT_EQ(tree.activated, std::vector<Id>({2, 2}));
    // Selecting in code tells neither unless asked.
    EXPECT_TRUE(view->selectItem(3));
    EXPECT_EQ(tree.selected.size(), 1u);
    EXPECT_TRUE(view->selectItem(1, true));
    EXPECT_EQ(tree.selected, std::vector<Id>({2, 1}));
    EXPECT_FALSE(view->selectItem(111));
}

TEST_F(TreeViewTest, RefreshKeepsOpenItemsAndTheSelectionByIdAndDropsWhatWent) {
    view->expand(1);
    view->expand(11);
    view->selectItem(112);
    tree.children[11] = {112};
    tree.children[0] = {1, 3};
    tree.children[1] = {99, 11};
    tree.names[99] = L"New";
    view->refresh();
    EXPECT_EQ(shown(), std::vector<Id>({1, 99, 11, 112, 3}));
    EXPECT_EQ(view->getSelectedItem(), 112u);
    EXPECT_EQ(view->getSelectedIndex(), 3);
    tree.children[11] = {};
    view->refresh();
    EXPECT_EQ(view->getSelectedItem(), 0u);
    EXPECT_EQ(view->getSelectedIndex(), -1);

    view->expandAll();
    EXPECT_EQ(shown(), std::vector<Id>({1, 99, 11, 3}));
}

TEST_F(TreeViewTest, CyclesZeroIdsAndAMissingAdaptorAreHarmless) {
    tree.children[0] = {0, 4};
    tree.children[4] = {4, 41};
    tree.children[41] = {4, 42};
    tree.names[4] = L"Loop";
    view->refresh();
    view->expandAll();
    // An item never appears inside itself; 0 is the root and never a row.
    EXPECT_EQ(shown(), std::vector<Id>({4, 41, 42}));
    view->expand(0);
    view->toggle(12345);
    EXPECT_EQ(shown(), std::vector<Id>({4, 41, 42}));

    view->setAdaptor(nullptr);
    EXPECT_EQ(view->numItems(), 0);
    view->expandAll();
    TestKit::click(TestKit::centreOf(view));
    TestKit::pressKey(Keys::Right);
    TestKit::pressKey(Keys::Left);
    EXPECT_EQ(view->getSelectedItem(), 0u);
    // Rows put in directly, not from an adaptor, still paint.
    view->setItems({L"plain"});
    view->redraw();
    TestKit::pump();
    EXPECT_EQ(view->itemAtRow(0), 0u);
}
