#include "LoggerTestSupport.h"

#include "controls/Menu.h"
#include "glob/FileDrag.h"
#include "logging/LogItemField.h"
#include "logging/LogLinks.h"
#include "tasks/HyperLink.h"

#include <fstream>
#include <memory>

using LB = LoggerBase;
using TestKit::argb;

namespace {

// The panels that internal links make, with the settings they were made with.
struct Made {
    static std::vector<GlobCreationInfo>& all() {
        static std::vector<GlobCreationInfo> v;
        return v;
    }
    static std::vector<std::unique_ptr<Glob>>& globs() {
        static std::vector<std::unique_ptr<Glob>> v;
        return v;
    }
};
GlobKindRegistration logTestPanel("LogTestPanel", [](const GlobCreationInfo& info) -> Glob* {
    Made::all().push_back(info);
    StandardPanel::InitArgs a(40, 40);
    Made::globs().emplace_back(new StandardPanel(a));
    return Made::globs().back().get();
});

void touch(const std::filesystem::path& p) { std::ofstream(p) << "x"; }

} // namespace

TEST_F(LoggerFixture, RowsArePaintedInTheColourOfTheirKindAndBlankRowsStayEmpty) {
    Logger* l = make(0, {}, 10, 480);
    put(l, L"MMMM normal MMMM");
    put(l, L"MMMM warning MMMM", LB::otWarning);
    put(l, L"MMMM success MMMM", LB::otSuccess);
    put(l, L"MMMM error MMMM", LB::otError);
    put(l, L"");
    put(l, L"a\n\nb");
    TableWidget* t = l->table();
    auto box = [&](int r) { return t->getCellBox({0, r}); };
    const Palette& p = l->getPalette();
    EXPECT_GT(TestKit::countPixels(t, box(0), p.text(kTextNormal), 40), 20);
    EXPECT_GT(TestKit::countPixels(t, box(1), Colour(1.0, 1.0, 0.0), 40), 20) << "warnings in yellow";
    EXPECT_EQ(TestKit::countPixels(t, box(1), p.text(kTextNormal), 40), 0);
    EXPECT_GT(TestKit::countPixels(t, box(2), Colour(0.1, 0.7, 0.3), 40), 20) << "success in green";
    EXPECT_GT(TestKit::countPixels(t, box(3), p.warning(), 40), 20) << "errors in the warning colour";
    ASSERT_EQ(l->rows()[4].text, L"");
    ASSERT_EQ(l->rows()[6].text, L"");
    Colour ground = p.childWindow(kChildList);
    for (int r : {4, 6}) {
        BoxInt empty = box(r);
        ASSERT_FALSE(empty.isEmpty());
        EXPECT_EQ(empty.height(), row) << "an empty row keeps its height";
        EXPECT_EQ(TestKit::countPixels(t, empty, ground, 2), empty.width() * empty.height()) << "and paints nothing";
    }
}

TEST_F(LoggerFixture, ASectionRowPaintsItsTextAndARuleToTheRightEdgeOnOneLine) {
    Logger* l = make(0, {}, 6, 300);
    put(l, L"first");
    std::wstring longTitle(80, L'W');
    put(l, L"Sec", LB::otSection);
    put(l, LightweightString<wchar_t>(longTitle), LB::otSection);
    TableWidget* t = l->table();
    BoxInt cell = t->getCellBox({0, 2});
    const Palette& p = l->getPalette();
    Colour rule = Colour::mix(p.subheadingText(), p.window(kShadeNormal), 0.2);
    int gap = UifStd::instance().getWidgetGap();
    // The rule is one row of pixels from after the text to the right edge less a gap.
    int ruleY = -1, bestRun = 0;
    for (int y = cell.y1; y < cell.y2; ++y) {
        int run = TestKit::countPixels(t, BoxInt(cell.x1 + cell.width() / 2, y, cell.x2 - gap - 1, y + 1), rule, 24);
        if (run > bestRun) bestRun = run, ruleY = y;
    }
    EXPECT_EQ(bestRun, cell.x2 - gap - 1 - (cell.x1 + cell.width() / 2)) << "a whole run of rule pixels";
    EXPECT_EQ(TestKit::countPixels(t, BoxInt(cell.x2 - gap + 1, ruleY, cell.x2, ruleY + 1), rule, 24), 0) << "it stops a gap short of the edge";
    EXPECT_GT(TestKit::countPixels(t, BoxInt(cell.x1, cell.y1, cell.x1 + 30, cell.y2), p.subheadingText(), 60), 5) << "the text is there";
    l->resize(l->width(), l->height());
    TestKit::pump();
    EXPECT_EQ(l->getRowHeight(4), row) << "a section too wide for the panel stays one line";
    BoxInt wide = t->getCellBox({0, 4});
    EXPECT_GT(TestKit::countPixels(t, wide, p.subheadingText(), 60), 20) << "and shows its text";
}

TEST_F(LoggerFixture, HTMLRowsAreDrawnAsMarkUpWhateverTheirKind) {
    Logger* l = make(0, {}, 6, 400);
    put(l, L"<font color=\"#ff0000\">MMMMMM</font> plain", LB::otWarning);
    TableWidget* t = l->table();
    BoxInt cell = t->getCellBox({0, 0});
    EXPECT_GT(TestKit::countPixels(t, cell, Colour(1.0, 0.0, 0.0), 40), 20) << "the mark-up's own colour";
    int shown = Glib::measureText(L"MMMMMM plain", Glib::getDefaultFont()).x + 2 * TableColumnDescription::textMargin();
    BoxInt after(cell.x1 + shown, cell.y1, cell.x2, cell.y2);
    Colour ground = l->getPalette().childWindow(kChildList);
    EXPECT_EQ(TestKit::countPixels(t, after, ground, 2), after.width() * after.height()) << "no tags painted as text";
    EXPECT_GT(TestKit::countPixels(t, cell, Colour(1.0, 1.0, 0.0), 40), 5) << "untagged text in the row's own colour";
    EXPECT_EQ(l->rows()[0].numLines, 1);
}

TEST_F(LoggerFixture, ClickingALinkOpensPagesAndEditListsAndRevealsOtherFiles) {
    Logger* l = make(0, {}, 12, 500);
    const char* names[] = {"cut.EDL", "page.html", "PAGE.HTML", "notes.txt", "old.htm"};
    for (const char* n : names) {
        touch(dir / n);
        put(l, path(n), LB::otHyperLink);
    }
    put(l, L"HTTPS://example.org/clip.mov", LB::otHyperLink);
    put(l, L"www.example.org", LB::otHyperLink);
    put(l, L"just words");
    std::string folder = dir.string();
    for (int r = 0; r < l->rowCount(); ++r) TestKit::click(rowPoint(l, r));
    TestKit::pump();
    std::vector<std::string> want = {"xdg-open " + folder + "/cut.EDL", "xdg-open " + folder + "/page.html", "xdg-open " + folder + "/PAGE.HTML",
                                     "xdg-open " + folder + "/",        "xdg-open " + folder + "/",          "xdg-open HTTPS://example.org/clip.mov",
                                     "xdg-open www.example.org"};
    EXPECT_EQ(launched, want) << "text and .htm files are shown in their folder, not opened";

    launched.clear();
    TestKit::mouseDown(rowPoint(l, 0));
    TestKit::mouseUp(rowPoint(l, 0), Event::kRight);
    TestKit::mouseDown(rowPoint(l, 1), Event::kRight);
    TestKit::mouseUp(rowPoint(l, 1), Event::kRight);
    EXPECT_TRUE(launched.empty()) << "a press, or a release of the right button, does nothing";

    LogItemField field(&l->rows());
    CellContext ctx;
    ctx.adaptor = l;
    ctx.cell = {0, 0};
    Event press = Event::mouse(Event::kMouseDown, rowPoint(l, 0), Event::kLeft);
    EXPECT_TRUE(field.handleEvent(ctx, press)) << "the event still counts as taken";
    EXPECT_EQ(field.contextCursor(ctx, {}), kCursorHand);
    ctx.cell = {0, 7};
    EXPECT_EQ(field.contextCursor(ctx, {}), kCursorArrow);
    ctx.cell = {0, 40000};
    EXPECT_TRUE(field.handleEvent(ctx, Event::mouse(Event::kMouseUp, {0, 0}, Event::kLeft)));
    EXPECT_EQ(field.drawField(ctx), 1);
}

TEST_F(LoggerFixture, InternalLinksMakeAPanelByTypeWithTheirParams) {
    Logger* l = make(0, {}, 8, 500);
    Made::all().clear();
    put(l, LB::HyperLink({L"{\"type\":\"LogTestPanel\",\"params\":{\"clip\":\"A001\",\"track\":\"V2\"}}"}, L"Open the clip").toString(),
        LB::otHyperLink);
    put(l, L"{\"type\":\"LogTestPanel\"}", LB::otHyperLink);
    put(l, L"{\"type\":\"\"}", LB::otHyperLink);
    put(l, L"{\"kind\":\"LogTestPanel\"}", LB::otHyperLink);
    put(l, L"{not json", LB::otHyperLink);
    for (int r = 0; r < l->rowCount(); ++r) TestKit::click(rowPoint(l, r));
    TestKit::pump();
    ASSERT_EQ(Made::all().size(), 2u) << "an empty or missing type, or bad JSON, makes nothing";
    EXPECT_EQ(Made::all()[0].type, LightweightString<char>("LogTestPanel"));
    EXPECT_EQ(Made::all()[0].settings.get("clip"), LightweightString<char>("A001"));
    EXPECT_EQ(Made::all()[0].settings.get("track"), LightweightString<char>("V2"));
    EXPECT_EQ(Made::all()[0].position, rowPoint(l, 0)) << "the panel goes where the mouse is";
    EXPECT_TRUE(Made::all()[1].settings.empty()) << "no params, default settings";
    EXPECT_TRUE(launched.empty()) << "nothing was handed to the shell";
    EXPECT_EQ(l->getFieldText({0, 0}), L"Open the clip");
    Made::globs().clear();
}

TEST_F(LoggerFixture, DraggingALinkFarEnoughHandsItsFilesToTheSystem) {
    std::vector<std::vector<std::wstring>> dragged;
    Glib::setFileDragHandler([&](const std::vector<LightweightString<wchar_t>>& paths) {
        dragged.emplace_back();
        for (const auto& p : paths) dragged.back().push_back(p.str());
        return true;
    });
    Logger* l = make(0, {}, 8, 500);
    touch(dir / "a.mov");
    touch(dir / "b.mov");
    put(l, LB::HyperLink({path("a.mov"), path("b.mov")}, L"Two clips").toString(), LB::otHyperLink);
    put(l, L"/media/with|bar.mov", LB::otHyperLink);
    put(l, L"/media/plain.mov");
    int gap = UifStd::instance().getWidgetGap();
    auto dragFrom = [&](int r, int distance) {
        XY<int> from = rowPoint(l, r);
        TestKit::mouseDown(from);
        TestKit::mouseMove(from + XY<int>(distance, 0));
        TestKit::mouseUp(from + XY<int>(distance, 0));
    };
    std::vector<std::string> revealed{"xdg-open " + dir.string() + "/"};
    dragFrom(0, gap - 1);
    EXPECT_TRUE(dragged.empty()) << "a drag shorter than the widget gap starts nothing";
    EXPECT_EQ(launched, revealed) << "it is a click";
    launched.clear();
    dragFrom(1, 4 * gap);
    dragFrom(2, 4 * gap);
    EXPECT_TRUE(dragged.empty()) << "a target with '|', or a plain row, is never dragged";
    dragFrom(0, 4 * gap);
    ASSERT_EQ(dragged.size(), 1u);
    EXPECT_EQ(dragged[0], (std::vector<std::wstring>{path("a.mov").str(), path("b.mov").str()}));
    EXPECT_TRUE(launched.empty()) << "the release that ends a drag is no click";
    TestKit::click(rowPoint(l, 0));
    TestKit::pump();
    EXPECT_EQ(launched, revealed) << "a press and release in place after a drag is a click again";
    EXPECT_EQ(dragged.size(), 1u);
    launched.clear();
    put(l, L"{\"type\":\"LogTestPanel\"}", LB::otHyperLink);
    dragFrom(3, 4 * gap);
    ASSERT_EQ(dragged.size(), 2u) << "an internal link without '|' is offered as a file all the same";
    EXPECT_EQ(dragged[1], std::vector<std::wstring>{L"{\"type\":\"LogTestPanel\"}"});
    Made::globs().clear();
    Glib::setFileDragHandler({});
    EXPECT_FALSE(Glib::dragFilesToOS({L"/media/a.mov"})) << "headless, with no handler, nothing is dragged";
}

TEST_F(LoggerFixture, TheContextMenuOffersLinkActionsOnLinksAndSavingElsewhere) {
    Logger* l = make(0, {}, 8, 500);
    touch(dir / "a.mov");
    touch(dir / "b.mov");
    put(l, LB::HyperLink({path("a.mov"), path("b.mov")}, L"/somewhere/Two clips").toString(), LB::otHyperLink);
    put(l, L"plain");
    put(l, L"{\"type\":\"LogTestPanel\"}", LB::otHyperLink);
    Event onLink = Event::mouse(Event::kMouseDown, rowPoint(l, 0), Event::kRight);
    l->reviewMenu(&onLink);
    ASSERT_EQ(l->menuItems().size(), 3u);
    EXPECT_EQ(l->getMenuTitle().getString(), L"Two clips");
    std::string list = toUTF8(path("a.mov") + L"," + path("b.mov")).str();
    for (const MenuItem& item : l->menuItems()) EXPECT_EQ(item.callback().message().str(), list);

    l->menuItems()[0].callback().invoke();
    EXPECT_EQ(OS()->getClipboardText(), path("a.mov")) << "copy takes the first path only";
    l->menuItems()[1].callback().invoke();
    l->menuItems()[2].callback().invoke();
    TestKit::pump();
    EXPECT_EQ(launched, (std::vector<std::string>{"xdg-open " + toUTF8(path("a.mov")).str(), "xdg-open " + dir.string() + "/"}))
        << "open takes the first; reveal shows the one folder of both";

    for (int r : {1, 2}) {
        Event e = Event::mouse(Event::kMouseDown, rowPoint(l, r), Event::kRight);
        l->reviewMenu(&e);
        ASSERT_EQ(l->menuItems().size(), 1u) << "row " << r;
        EXPECT_EQ(l->menuItems()[0].text().getString(), resourceStrW(306));
    }
    l->reviewMenu(nullptr);
    EXPECT_EQ(l->menuItems().size(), 1u);
    launched.clear();
    l->copyToClipboard(NotifyMsg(""));
    l->openFile(NotifyMsg(""));
    l->revealInOS(NotifyMsg(""));
    EXPECT_TRUE(launched.empty()) << "an empty list does nothing";
}
