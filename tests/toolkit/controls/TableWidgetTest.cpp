#include "ListsTestSupport.h"

#include "controls/CellEditorBase.h"
#include "controls/ScrollBar.h"
#include "controls/TableWidget.h"
#include "controls/TextBox.h"
#include "draw/CanvasRenderer.h"

#include <algorithm>
#include <climits>
#include <string>

using TestKit::argb;
using TestKit::Owned;
using TestKit::pixelNear;

namespace {

// Three columns over a list of names: the name (editable, sharing the spare
// width), a size (fixed, right-aligned) and a kind (fixed, coloured). It records
// which rows it was asked about, and may claim more rows than it has.
class Files : public iTableAdaptor {
public:
    explicit Files(int n) {
        for (int i = 0; i < n; ++i) names.emplace_back(L"file" + std::to_wstring(i));
    }
    std::vector<TableColumnDescription> getColumnDefinitions() override {
        TableColumnDescription name(UIString(L"Name")), size(UIString(L"Size"), 60), kind(UIString(L"Kind"), 80, false);
        kind.setColour(kindColour);
        return {name, size, kind};
    }
    unsigned getSize() override { return claimed ? claimed : static_cast<unsigned>(names.size()); }
    LightweightString<wchar_t> getFieldText(const XY<int>& cell) override {
        asked.push_back(cell.y);
        if (cell.y < 0 || cell.y >= static_cast<int>(names.size())) return {};
        if (cell.x == 0) return names[static_cast<std::size_t>(cell.y)];
        if (cell.x == 1) return LightweightString<wchar_t>(std::to_wstring(cell.y * 10));
        return L"clip";
    }
    bool canEdit(const XY<int>& cell) override { return cell.x == 0; }
    bool setFieldText(const XY<int>& cell, const LightweightString<wchar_t>& text) override {
        if (cell.y < 0 || cell.y >= static_cast<int>(names.size())) return false;
        names[static_cast<std::size_t>(cell.y)] = text;
        return true;
    }
    Glib::TextAlignment getTextAlignment(const XY<int>& cell) override {
        return {cell.x == 1 ? Glib::kAlignRight : Glib::kAlignDefault, Glib::kAlignMiddle};
    }
    int getRowHeight(int row) override {
        heightAsked.push_back(row);
        return tallEvery && row % tallEvery == 0 ? tall : 0;
    }
    DBFieldTypes::eType getFieldType(const XY<int>& cell) override { return cell.x == 2 ? DBFieldTypes::kColour : DBFieldTypes::kText; }
    void handleHeaderClick(int col) override { headerClicks.push_back(col); }

    std::vector<LightweightString<wchar_t>> names;
    Colour kindColour{0.3, 0.1, 0.4};
    unsigned claimed = 0;
    int tallEvery = 0, tall = 0;
    std::vector<int> asked, heightAsked, headerClicks;
};

// Paints a cell in one colour and counts the clicks it is given.
class SwatchEditor : public CellEditorBase<Glob> {
public:
    explicit SwatchEditor(const Colour& c) : colour(c) {}
    int drawField(CellContext& ctx) override {
        if (ctx.draw) CanvasRenderer(ctx.canvas).render(Glib::RectDescription(ctx.box, colour));
        return 1;
    }
    bool handleEvent(const CellContext& ctx, const Event& e) override {
        if (mouse_down_event(e)) clickedRows.push_back(ctx.row());
        return true;
    }
    void initWidgetFromData(CellContext&) override {}
    bool storeData(CellContext&) override { return false; }
    void reset() override {}
    XY<int> measure(const CellContext&) override { return {10, 10}; }
    Glob* makeWidget(CellContext&) override { return nullptr; }

    Colour colour;
    std::vector<int> clickedRows;
};

class TableWidgetTest : public ::testing::Test {
protected:
    void SetUp() override {
        host = std::make_unique<Owned<MessageLog>>(makeHost(400, 400));
        row = UifStd::instance().getRowHeight();
    }
    void TearDown() override {
        host.reset();
        TestKit::reset();
    }
    TableWidget* make(Files& files, int visibleRows = 6, int width = 320) {
        TableWidget::InitArgs a(&files, static_cast<unsigned short>(width),
                                static_cast<unsigned short>(TableWidget::calcHeight(static_cast<unsigned>(visibleRows), 2)));
        return addTo<TableWidget>(host->get(), a, Glob::BottomLeft(20, 20));
    }
    XY<int> cellPoint(TableWidget* t, XY<int> cell) {
        BoxInt b = t->getCellBox(cell);
        return TestKit::screenPointOf(t, {b.x1 + 3, (b.y1 + b.y2) / 2});
    }
    MessageLog& log() { return *host->get(); }

    std::unique_ptr<Owned<MessageLog>> host;
    int row = 0;
};

} // namespace

TEST_F(TableWidgetTest, ColumnsShareTheWidthAndTheHeaderRowsAndCurrentRowArePainted) {
    Files files(20);
    TableWidget* t = make(files);
    const Palette& p = t->getPalette();
    EXPECT_EQ(t->getHeaderHeight(), row);
    EXPECT_EQ(t->numLines(), 6);
    int body = 320 - ScrollBar::thickness();
    EXPECT_EQ(t->getColumnWidth(1), 60);
    EXPECT_EQ(t->getColumnWidth(2), 80);
    EXPECT_EQ(t->getColumnWidth(0), body - 140);
    EXPECT_EQ(t->getCurPos(), XY<int>(0, 0));

    // The header shows the titles on its own shade.
    BoxInt header = t->headerBox();
    EXPECT_TRUE(pixelNear(t, header.x2 - ScrollBar::thickness() - 2, header.y1 + 2, argb(p.window(kShadeDark)), 1));
    EXPECT_GT(TestKit::countPixels(t, BoxInt(header.x1, header.y1, header.x1 + 60, header.y2), p.text(), 40), 5);

    // Row 0 is current and highlighted; row 1 is plain with text; the kind column is coloured.
    BoxInt first = t->getCellBox({0, 0}), second = t->getCellBox({0, 1});
    EXPECT_EQ(first.y2, t->bodyBox().y2);
    EXPECT_TRUE(pixelNear(t, first.x2 - 2, first.y1 + 2, argb(p.selection(kSelectionUnfocused)), 1));
    EXPECT_TRUE(pixelNear(t, second.x2 - 2, second.y1 + 2, argb(p.childWindow(kChildList)), 1));
    EXPECT_GT(TestKit::countPixels(t, second, p.text(), 40), 5);
    EXPECT_GT(TestKit::countPixels(t, first, p.text(kTextOnSelection), 40), 5);
    BoxInt kind = t->getCellBox({2, 1});
    EXPECT_TRUE(pixelNear(t, kind.x2 - 2, kind.y1 + 2, argb(files.kindColour), 1));
    // The size column's text is at its right: its left part stays clear.
    BoxInt size = t->getCellBox({1, 1});
    EXPECT_EQ(TestKit::countPixels(t, BoxInt(size.x1 + 1, size.y1, size.x1 + 20, size.y2), p.text(), 60), 0);
    EXPECT_GT(TestKit::countPixels(t, BoxInt(size.x2 - 20, size.y1, size.x2, size.y2), p.text(), 60), 3);

    // Without highlighting the current row looks like any other.
    t->setHighlightCurrentRow(false);
    TestKit::pump();
    EXPECT_TRUE(pixelNear(t, first.x2 - 2, first.y1 + 2, argb(p.childWindow(kChildList)), 1));
}

TEST_F(TableWidgetTest, OnlyTheRowsInViewAreAskedForWhateverTheLength) {
    Files files(100000);
    TableWidget* t = make(files, 10);
    t->scrollToRow(50000);
    files.asked.clear();
    t->redraw();
    TestKit::pump();
    ASSERT_FALSE(files.asked.empty());
    EXPECT_EQ(*std::min_element(files.asked.begin(), files.asked.end()), 50000);
    EXPECT_EQ(*std::max_element(files.asked.begin(), files.asked.end()), t->getLastVisibleRow());
    EXPECT_LE(files.asked.size(), 3u * 11u);
    EXPECT_EQ(t->getLastVisibleRow(), 50009);

    // The end of the table needs only the last screenful.
    files.heightAsked.clear();
    t->scrollToRow(INT_MAX);
    EXPECT_EQ(t->getFirstVisibleRow(), 100000 - 10);
    for (int r : files.heightAsked) EXPECT_GE(r, 100000 - 12);
    EXPECT_NEAR(t->scrollBar()->thumbPos(), 1.0, 1e-9);
}

TEST_F(TableWidgetTest, RowsOfVaryingHeightScrollRevealAndHitTest) {
    Files files(30);
    files.tallEvery = 3;
    files.tall = 3 * row;
    TableWidget* t = make(files, 6);
    EXPECT_EQ(t->rowHeightOf(0), 3 * row);
    EXPECT_EQ(t->rowHeightOf(1), row);
    EXPECT_EQ(t->getCellBox({0, 0}).height(), 3 * row);
    EXPECT_EQ(t->getCellBox({0, 1}).y2, t->bodyBox().y2 - 3 * row);
    EXPECT_EQ(t->getLastVisibleRow(), 3);

    t->revealRow(7);
    // Rows 6 (tall) and 7 fill four standard rows; row 5 and 4 fit above them.
    EXPECT_EQ(t->getFirstVisibleRow(), 4);
    EXPECT_EQ(t->getCellBox({0, 7}).y1, t->bodyBox().y1);
    t->revealRow(2);
    EXPECT_EQ(t->getFirstVisibleRow(), 2);
    t->revealRow(15, true);
    BoxInt centred = t->getCellBox({0, 15});
    EXPECT_LE(std::abs((centred.y1 + centred.y2) / 2 - (t->bodyBox().y1 + t->bodyBox().y2) / 2), 2 * row);

    // The last rows end at the bottom of the view.
    t->scrollToRow(1000);
    EXPECT_EQ(t->getLastVisibleRow(), 29);
    EXPECT_EQ(t->getCellBox({0, 29}).y1, t->bodyBox().y1);
    XY<int> mid = TestKit::screenPointOf(t, {5, t->getCellBox({0, 27}).y1 + 2});
    Event e = Event::mouse(Event::kMouseDown, mid, Event::kLeft);
    EXPECT_EQ(t->getCellForMouseEvent(e), XY<int>(0, 27));
    EXPECT_EQ(t->getCellAt({5, t->headerBox().y1 + 2}), XY<int>(0, -1));
    EXPECT_EQ(t->getCellAt({t->bodyBox().x2 + 2, 5}), XY<int>(-1, -1));
}

TEST_F(TableWidgetTest, TheMouseAndKeysMoveTheCurrentCellAndTellTheOwner) {
    Files files(40);
    TableWidget* t = make(files, 6);
    TestKit::click(cellPoint(t, {1, 2}));
    EXPECT_EQ(t->getCurPos(), XY<int>(1, 2));
    EXPECT_EQ(log().count(TableWidget::currentCellChangedMsg), 1);
    ASSERT_TRUE(t->hasKbdFocus());
    TestKit::pressKey(Keys::Down);
    TestKit::pressKey(Keys::Right);
    TestKit::pressKey(Keys::Right);
    TestKit::pressKey(Keys::Right);
    EXPECT_EQ(t->getCurPos(), XY<int>(2, 3));
    // A page keeps one row of the last view in sight.
    TestKit::pressKey(Keys::PageDown);
    EXPECT_EQ(t->getCurPos().y, 3 + 5);
    EXPECT_GE(t->getLastVisibleRow(), 8);
    TestKit::pressKey(Keys::End);
    EXPECT_EQ(t->getCurPos().y, 39);
    EXPECT_EQ(t->getLastVisibleRow(), 39);
    TestKit::pressKey(Keys::Home);
    TestKit::pressKey(Keys::Up);
    EXPECT_EQ(t->getCurPos(), XY<int>(2, 0));
    EXPECT_EQ(t->getFirstVisibleRow(), 0);
    // Each real move told the owner once; Right at the edge and Up at the top did not.
    EXPECT_EQ(log().count(TableWidget::currentCellChangedMsg), 6);

    // Wheel and bar scroll without moving the current cell.
    TestKit::wheel(TestKit::centreOf(t), -1);
    EXPECT_EQ(t->getFirstVisibleRow(), 3);
    ScrollBar* bar = t->scrollBar();
    TestKit::click(TestKit::screenPointOf(bar, {bar->width() / 2, 2}));
    EXPECT_EQ(t->getFirstVisibleRow(), 4);
    EXPECT_EQ(t->getCurPos(), XY<int>(2, 0));

    // Code moves notify only when asked; out-of-range cells are clamped.
    log().clear();
    t->setCurPos({7, 99});
    TestKit::pump();
    EXPECT_EQ(t->getCurPos(), XY<int>(2, 39));
    EXPECT_TRUE(log().messages.empty());
    EXPECT_EQ(t->getLastVisibleRow(), 39);
    t->setCurPos({-3, -3}, TableWidget::kNotify);
    TestKit::pump();
    EXPECT_EQ(t->getCurPos(), XY<int>(0, 0));
    EXPECT_EQ(log().count(TableWidget::currentCellChangedMsg), 1);
    EXPECT_EQ(t->getFirstVisibleRow(), 34);
}

TEST_F(TableWidgetTest, EditingInPlaceStoresWithReturnAndDropsWithEscape) {
    Files files(10);
    TableWidget* t = make(files);
    TestKit::click(cellPoint(t, {0, 1}));
    TestKit::click(cellPoint(t, {0, 1}));
    ASSERT_TRUE(t->isEditing());
    EXPECT_EQ(t->getEditingCell(), XY<int>(0, 1));
    auto* box = dynamic_cast<TextBox*>(get_kbd_focus());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->parent(), t);
    EXPECT_EQ(box->box(), t->getCellBox({0, 1}));
    EXPECT_EQ(box->getString(), LightweightString<wchar_t>(L"file1"));
    TestKit::typeText(L"intro.mov");
    TestKit::pressKey(Keys::Return);
    EXPECT_FALSE(t->isEditing());
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(files.names[1], LightweightString<wchar_t>(L"intro.mov"));
    EXPECT_EQ(log().count(TableWidget::cellEditedMsg), 1);
    EXPECT_TRUE(t->hasKbdFocus());

    // F2 edits the current cell; Escape leaves the data alone.
    TestKit::pressKey(Keys::F2);
    ASSERT_TRUE(t->isEditing());
    TestKit::typeText(L"junk");
    TestKit::pressKey(Keys::Escape);
    EXPECT_FALSE(t->isEditing());
    EXPECT_EQ(files.names[1], LightweightString<wchar_t>(L"intro.mov"));
    EXPECT_EQ(log().count(TableWidget::cellEditedMsg), 1);

    // Clicking another cell keeps what was typed.
    ASSERT_TRUE(t->startEditing({0, 4}));
    TestKit::typeText(L"b-roll");
    TestKit::click(cellPoint(t, {1, 5}));
    EXPECT_FALSE(t->isEditing());
    EXPECT_EQ(files.names[4], LightweightString<wchar_t>(L"b-roll"));
    EXPECT_EQ(t->getCurPos(), XY<int>(1, 5));

    // Cells the adaptor does not let be edited are activated instead.
    TestKit::click(cellPoint(t, {1, 5}));
    EXPECT_FALSE(t->isEditing());
    EXPECT_EQ(log().count(TableWidget::cellActivatedMsg), 1);
    t->hideTextEntryBox(true);
    EXPECT_FALSE(t->startEditing({0, 2}));
    TestKit::pressKey(Keys::Left);
    TestKit::pressKey(Keys::Return);
    EXPECT_FALSE(t->isEditing());
    EXPECT_EQ(log().count(TableWidget::cellActivatedMsg), 2);
}

TEST_F(TableWidgetTest, FieldEditorsAreChosenByKindAndTakeTheirCellsClicks) {
    Files files(10);
    TableWidget* t = make(files);
    Colour green(0.1, 0.8, 0.2);
    auto* swatch = new SwatchEditor(green);
    t->registerFieldEditor(DBFieldTypes::kColour, Zn::Ptr<iCellEditor>(swatch));
    TestKit::pump();
    BoxInt kind = t->getCellBox({2, 3});
    EXPECT_TRUE(pixelNear(t, (kind.x1 + kind.x2) / 2, (kind.y1 + kind.y2) / 2, argb(green), 1));
    EXPECT_EQ(t->getFieldEditor(DBFieldTypes::kColour).get(), swatch);
    TestKit::click(cellPoint(t, {2, 3}));
    EXPECT_EQ(swatch->clickedRows, std::vector<int>({3}));
    // The editor took the click, so the current cell stayed.
    EXPECT_EQ(t->getCurPos(), XY<int>(0, 0));
    // A kind with no editor of its own falls back to the one for kUnknown.
    t->registerFieldEditor(DBFieldTypes::kUnknown, Zn::Ptr<iCellEditor>(new SwatchEditor(Colour(0.9, 0.1, 0.1))));
    TestKit::pump();
    BoxInt name = t->getCellBox({0, 3});
    EXPECT_TRUE(pixelNear(t, name.x1 + 2, name.y1 + 2, argb(Colour(0.9, 0.1, 0.1)), 1));
    t->registerFieldEditor(DBFieldTypes::kUnknown, {});
    t->registerFieldEditor(DBFieldTypes::kColour, {});
    TestKit::pump();
    EXPECT_TRUE(pixelNear(t, kind.x2 - 2, kind.y1 + 2, argb(files.kindColour), 1));
}

TEST_F(TableWidgetTest, HeaderEdgesDragAndTitlesClick) {
    Files files(5);
    TableWidget* t = make(files);
    int edge = t->bodyBox().x1 + t->getColumnWidth(0);
    int y = t->headerBox().y1 + t->headerBox().height() / 2;
    EXPECT_EQ(t->contextCursor({edge, y}), kCursorResizeHorizontal);
    TestKit::drag(TestKit::screenPointOf(t, {edge, y}), TestKit::screenPointOf(t, {edge - 40, y}));
    EXPECT_EQ(t->getColumnWidth(0), edge - 40 - t->bodyBox().x1);
    // The fixed "Kind" column cannot be dragged.
    int kindEdge = t->bodyBox().x1 + t->getColumnWidth(0) + 60 + 80;
    EXPECT_EQ(t->contextCursor({kindEdge, y}), kCursorArrow);
    TestKit::click(TestKit::screenPointOf(t, {t->bodyBox().x1 + t->getColumnWidth(0) + 20, y}));
    EXPECT_EQ(files.headerClicks, std::vector<int>({1}));
    // Editable text cells show the text cursor.
    BoxInt cell = t->getCellBox({0, 1});
    EXPECT_EQ(t->contextCursor({cell.x1 + 2, cell.y1 + 2}), kCursorIBeam);
}

TEST_F(TableWidgetTest, MissingAndBadDataDegradeQuietly) {
    // More rows claimed than held: the extra rows are blank.
    Files files(3);
    files.claimed = 8;
    TableWidget* t = make(files);
    EXPECT_EQ(t->getLastVisibleRow(), 5);
    BoxInt blank = t->getCellBox({0, 4});
    EXPECT_EQ(TestKit::countPixels(t, blank, t->getPalette().text(), 60), 0);
    EXPECT_FALSE(t->startEditing({0, 8}));
    EXPECT_FALSE(t->startEditing({1, 2}));
    EXPECT_FALSE(t->startEditing({9, 2}));

    // Negative heights count as the standard height.
    files.tallEvery = 1;
    files.tall = -50;
    t->refresh();
    EXPECT_EQ(t->rowHeightOf(2), row);

    // No rows, then no adaptor: nothing to select, nothing breaks.
    files.claimed = 0;
    files.names.clear();
    t->refresh();
    EXPECT_EQ(t->getCurPos().y, -1);
    TestKit::click(TestKit::centreOf(t));
    TestKit::pressKey(Keys::Down);
    TestKit::pressKey(Keys::Return);
    t->revealRow(4);
    EXPECT_EQ(t->getLastVisibleRow(), -1);
    t->setAdaptor(nullptr);
    EXPECT_EQ(t->numColumns(), 0);
    TestKit::click(TestKit::centreOf(t));
    TestKit::wheel(TestKit::centreOf(t), -1);
    EXPECT_TRUE(pixelNear(t, 3, 3, argb(t->getPalette().childWindow(kChildList)), 1));
    t->resize(-10, -10);
    t->redraw();
    TestKit::pump();
    EXPECT_EQ(t->numLines(), 0);
    EXPECT_EQ(TableWidget::calcHeight(0, 0), 0);
    EXPECT_EQ(TableWidget::calcHeight(3, 2), 4 * row);
    EXPECT_EQ(log().count(TableWidget::cellEditedMsg), 0);
}
