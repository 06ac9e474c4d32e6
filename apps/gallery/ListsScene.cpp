// Scrolling, lists and tables: scroll bars in their states, a list with a multiple
// selection, a tree of a project's bins, a table of a thousand clips with a
// current row and editable names, a header-less log-like table, and a scrolling
// panel of rows.
#include "GalleryScene.h"

#include "controls/ScrollBar.h"
#include "controls/ScrollList.h"
#include "controls/StandardPanel.h"
#include "controls/TableWidget.h"
#include "controls/TextLabel.h"
#include "controls/TreeView.h"
#include "controls/VerticalScrollingBase.h"
#include "draw/Screen.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"

#include <map>
#include <string>

namespace {

using WStr = LightweightString<wchar_t>;

// The clips of a project: names that can be edited, durations and formats made up
// from the row number.
class ClipTable : public iTableAdaptor {
public:
    explicit ClipTable(int n) {
        static const wchar_t* subjects[] = {L"interview", L"b-roll", L"drone", L"titles", L"crowd", L"harbour", L"studio"};
        for (int i = 0; i < n; ++i) names.emplace_back(std::wstring(subjects[i % 7]) + L"_" + std::to_wstring(1000 + i) + L".mov");
    }
    std::vector<TableColumnDescription> getColumnDefinitions() override {
        TableColumnDescription format(UIString(L"Format"), 90);
        format.setColour(Colour(0.19, 0.2, 0.24));
        return {TableColumnDescription(UIString(L"Clip")), TableColumnDescription(UIString(L"Duration"), 90), format};
    }
    unsigned getSize() override { return static_cast<unsigned>(names.size()); }
    WStr getFieldText(const XY<int>& cell) override {
        if (cell.y < 0 || cell.y >= static_cast<int>(names.size())) return {};
        if (cell.x == 0) return names[static_cast<std::size_t>(cell.y)];
        if (cell.x == 1) {
            int frames = 250 + (cell.y * 7919) % 9000;
            wchar_t buf[32];
            std::swprintf(buf, 32, L"%02d:%02d:%02d", frames / 25 / 60, frames / 25 % 60, frames % 25);
            return buf;
        }
        return cell.y % 3 ? L"1080p25" : L"2160p50";
    }
    bool canEdit(const XY<int>& cell) override { return cell.x == 0; }
    bool setFieldText(const XY<int>& cell, const WStr& text) override {
        if (cell.y < 0 || cell.y >= static_cast<int>(names.size()) || text.empty()) return false;
        names[static_cast<std::size_t>(cell.y)] = text;
        return true;
    }
    Glib::TextAlignment getTextAlignment(const XY<int>& cell) override {
        return {cell.x == 1 ? Glib::kAlignRight : Glib::kAlignDefault, Glib::kAlignMiddle};
    }
    int getTextStyle(const XY<int>& cell) override { return cell.x == 2 && cell.y % 3 == 0 ? kStyleBold : kStyleDefault; }

    std::vector<WStr> names;
};

// A log of messages: one column, no header, some rows two lines high, warnings in colour.
class EventLog : public iTableAdaptor {
public:
    std::vector<TableColumnDescription> getColumnDefinitions() override { return {TableColumnDescription()}; }
    unsigned getSize() override { return 7; }
    WStr getFieldText(const XY<int>& cell) override {
        static const wchar_t* lines[] = {L"Render started",
                                         L"Reading 12 clips from the project's media folder",
                                         L"Clip 7 has no audio: silence is used in its place, which keeps the timeline in sync",
                                         L"Encoding",
                                         L"Frame 1024 of 4096",
                                         L"Warning: disk almost full",
                                         L"/projects/harbour/exports/final.mov"};
        return cell.y >= 0 && cell.y < 7 ? WStr(lines[cell.y]) : WStr();
    }
    void getFieldColours(const XY<int>& cell, Palette& p) override {
        if (cell.y == 5) p.setColour(Palette::kText, p.warning());
    }
    int getTextStyle(const XY<int>& cell) override { return cell.y == 6 ? kStyleLink : kStyleDefault; }
    int getRowHeight(int row) override { return row == 2 ? 2 * UifStd::instance().getRowHeight() : 0; }
};

// Bins of a project: folders of clips, sequences and effects.
class BinTree : public iTreeViewAdaptor {
public:
    std::vector<ItemId> getChildren(ItemId parent) override {
        auto it = children.find(parent);
        return it == children.end() ? std::vector<ItemId>() : it->second;
    }
    WStr getItemText(ItemId item) override { return names[item]; }

    std::map<ItemId, std::vector<ItemId>> children{{0, {1, 2, 3}}, {1, {11, 12, 13}}, {11, {111, 112, 113}}, {2, {21, 22}}, {3, {31}}};
    std::map<ItemId, WStr> names{{1, L"Footage"},    {2, L"Sequences"},  {3, L"Effects"},          {11, L"Day 1"},
                                 {12, L"Day 2"},     {13, L"Archive"},   {111, L"harbour_01.mov"}, {112, L"harbour_02.mov"},
                                 {113, L"pier.mov"}, {21, L"Rough cut"}, {22, L"Final"},           {31, L"Colour grade"}};
};

ClipTable& clips() {
    static ClipTable t(1000);
    return t;
}
EventLog& eventLog() {
    static EventLog l;
    return l;
}
BinTree& bins() {
    static BinTree b;
    return b;
}

void buildLists() {
    const UifStd& u = UifStd::instance();
    int gap = u.getWidgetGap(), row = u.getRowHeight();
    const Screen& screen = GlobManager::instance().screen();
    Drawable::disableRedraws();

    // Tall enough for the clip table (a header and eight rows) over the log (four rows).
    int mainHeight = 13 * row + 2 * gap + u.getTitleHeight() + 2 * u.getBorderWidth();
    StandardPanel* main = GalleryScene::makePanel(1000, mainHeight, L"Lists, trees and tables", {40, screen.height() - 60 - mainHeight});

    ScrollList::InitArgs list(200, static_cast<unsigned short>(12 * row));
    for (const WStr& n : clips().names) {
        if (list.items.size() == 40) break;
        list.items.push_back(n);
    }
    list.multiSelect = true;
    auto* scrollList = main->createWidget<ScrollList>(list, Glob::UserTopLeft(gap, gap));
    scrollList->setSelected(1, true);
    scrollList->setSelected(3, true);
    scrollList->setSelected(4, true);

    TreeView::InitArgs tree(220, static_cast<unsigned short>(12 * row), &bins());
    auto* treeView = main->createWidget<TreeView>(tree, Glob::RightOf(gap, scrollList, kAlignEnd));
    treeView->expand(1);
    treeView->expand(11);
    treeView->selectItem(112);

    TableWidget::InitArgs table(&clips(), 540, static_cast<unsigned short>(TableWidget::calcHeight(8, 2)));
    auto* clipTable = main->createWidget<TableWidget>(table, Glob::RightOf(gap, treeView, kAlignEnd));
    clipTable->setCurPos({0, 3}, TableWidget::kRedrawTable);

    TableWidget::InitArgs log(&eventLog(), 540, static_cast<unsigned short>(TableWidget::calcHeight(4, 0) - gap), 0, 0);
    auto* logTable = main->createWidget<TableWidget>(log, Glob::Below(gap, clipTable));
    logTable->hideTextEntryBox(true);
    logTable->setHighlightCurrentRow(false);
    logTable->scrollToRow(1);
    GlobManager::instance().realize(main);

    // A scrolling panel of rows, and scroll bars on their own in each state.
    StandardPanel* side = GalleryScene::makePanel(520, 7 * row + 3 * gap + u.getTitleHeight(), L"Scrolling panel and scroll bars", {0, 0});
    side->setupRootPos({40, main->getY() - gap * 3 - side->height()});
    VerticalScrollingBase::InitArgs rows(260, static_cast<unsigned short>(6 * row));
    auto* scroller = side->createWidget<VerticalScrollingBase>(rows, Glob::UserTopLeft(gap, gap));
    for (int i = 0; i < 14; ++i) {
        TextLabel::InitArgs label(UIString(WStr(L"Parameter row " + std::to_wstring(i + 1))), 0, static_cast<unsigned short>(row));
        scroller->createManagedWidget<TextLabel>(label);
    }
    scroller->scrollTo(2 * row);

    ScrollBar::InitArgs v(ScrollBar::kVertical, static_cast<unsigned short>(6 * row), 0.3, 0.4);
    auto* vbar = side->createWidget<ScrollBar>(v, Glob::RightOf(gap * 2, scroller, kAlignEnd));
    ScrollBar::InitArgs h(ScrollBar::kHorizontal, 180, 0.5, 0.0);
    auto* hbar = side->createWidget<ScrollBar>(h, Glob::RightOf(gap * 2, vbar, kAlignEnd));
    ScrollBar::InitArgs idle(ScrollBar::kHorizontal, 180, 1.0, 0.0);
    side->createWidget<ScrollBar>(idle, Glob::Below(gap * 2, hbar));
    GlobManager::instance().realize(side);

    Drawable::enableRedraws();
}

GallerySceneRegistration lists("lists", "Scroll bars, a scrolling list, a tree, tables of clips and of log lines, a scrolling panel", buildLists);

} // namespace
