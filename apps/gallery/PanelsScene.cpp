// Titled rows lined up on one legend column, a labelled group of colour
// swatches, two panes with a bar between them, tabs, a status line that counts
// clicks and clears itself, a tooltip on the render row, and a warning beside it all.
#include "GalleryScene.h"

#include "controls/ColRect.h"
#include "controls/Splitter.h"
#include "controls/StatusMessage.h"
#include "controls/TabbedDialogue.h"
#include "controls/TextLabel.h"
#include "controls/TitleButton.h"
#include "controls/Warn.h"
#include "controls/WidgetGroup.h"
#include "draw/Screen.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"

#include <algorithm>
#include <string>

namespace {

class PanelsPanel : public StandardPanel {
public:
    explicit PanelsPanel(const InitArgs& args) : StandardPanel(args) {}
    const char* idstring() const override { return "PanelsPanel"; }

    StatusMessage* status = nullptr;
    int clicks = 0;

    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override {
        if (!status) return 0;
        ++clicks;
        std::wstring text = L"Clicked " + std::wstring(message.str().begin(), message.str().end()) + L" (" + std::to_wstring(clicks) + L")";
        status->setMessage(UIString(WString(text)), 3000);
        return 1;
    }
};

StandardPanel* blankPage(TabbedDialogue* tabs) {
    StandardPanel::InitArgs args(10, 10);
    args.canvas = tabs->canvas();
    args.palette = tabs->getPalette();
    return new StandardPanel(args);
}

void addRows(StandardPanel* page, Glob* owner, int gap, int row) {
    const wchar_t* legends[] = {L"Output", L"Frame rate", L"Colour space"};
    const wchar_t* choices[] = {L"ProRes 422", L"25 fps", L"Rec. 709"};
    const char* messages[] = {"output", "rate", "space"};
    std::vector<TitleButton*> rows;
    const int width = page->getUserArea().width() - 2 * gap;
    for (int i = 0; i < 3; ++i) {
        TitleButton::InitArgs args(legends[i], choices[i], WidgetCallback(messages[i]), 0, static_cast<unsigned short>(width),
                                   static_cast<unsigned short>(row));
        rows.push_back(page->createWidget<TitleButton>(args, i == 0 ? Glob::UserTopLeft(gap, gap) : Glob::Below(gap / 2, rows.back())));
        // The page is only a holder: the rows report to the panel that shows the status.
        rows.back()->setLogicalParent(owner);
    }
    int widest = 0;
    for (TitleButton* r : rows) widest = std::max(widest, r->getTitleWidth());
    for (TitleButton* r : rows) r->setTitleWidth(widest, kNoRedraw);
    rows[2]->setActive(false, kNoRedraw);
    rows[0]->setContextString(L"Where the rendered file goes");

    WidgetGroup::InitArgs g(L"Swatches", static_cast<unsigned short>(width),
                            static_cast<unsigned short>(WidgetGroup::calcHeightForRows(1, 2 * row, 0)));
    auto* group = page->createWidget<WidgetGroup>(g, Glob::Below(gap, rows.back()));
    const ColourData colours[] = {ColourData(0.85, 0.2, 0.2, 0, 1.0), ColourData(40.0, 0.8, 0.95, 2, 1.0), ColourData(0.2, 0.6, 0.9, 0, 0.5),
                                  ColourData(0.3, 0.75, 0.35, 0, 1.0)};
    Glob* last = nullptr;
    for (int i = 0; i < 4; ++i) {
        ColRect::InitArgs s(colours[i], WidgetCallback("swatch"), static_cast<unsigned short>(3 * row), static_cast<unsigned short>(2 * row));
        s.outline = i != 3;
        last = group->createWidget<ColRect>(s, last ? Glob::RightOf(gap, last) : Glob::UserBottomLeft(0, 0));
        last->setLogicalParent(owner);
    }
}

void addPanes(StandardPanel* page, int gap) {
    const BoxInt area = page->getUserArea();
    const int t = Splitter::calcThickness();
    const int half = (area.width() - 2 * gap - t) / 2;
    const int h = area.height() - 2 * gap;
    TextLabel::InitArgs left(L"Source monitor", static_cast<unsigned short>(half), static_cast<unsigned short>(h));
    auto* a = page->createWidget<TextLabel>(left, Glob::UserBottomLeft(gap, gap));
    a->setPalette(makeWindowPalette(Colour(0.16, 0.18, 0.22)));
    Splitter::InitArgs bar(Splitter::kSideBySide, static_cast<unsigned short>(h));
    bar.minFirst = bar.minSecond = static_cast<unsigned short>(4 * gap);
    auto* s = page->createWidget<Splitter>(bar, Glob::UserBottomLeft(gap + half, gap));
    TextLabel::InitArgs right(L"Record monitor", static_cast<unsigned short>(half), static_cast<unsigned short>(h));
    auto* b = page->createWidget<TextLabel>(right, Glob::UserBottomLeft(gap + half + t, gap));
    b->setPalette(makeWindowPalette(Colour(0.22, 0.16, 0.18)));
    b->setAlignment(Glib::kAlignRight);
    s->setPanes(a, b);
}

void buildPanels() {
    const UifStd& u = UifStd::instance();
    const int gap = u.getWidgetGap(), row = u.getRowHeight();
    Drawable::disableRedraws();
    StandardPanel::InitArgs args(520, static_cast<unsigned short>(9 * row + 8 * gap + u.getTitleHeight()));
    args.palette = u.getColourScheme();
    auto* p = new PanelsPanel(args);
    p->setBorder(StandardPanel::getDefaultBorder());
    p->setTitle(UIString(L"Panels"));
    p->addStandardWidgets(StandardPanel::kCloseBox | StandardPanel::kTitleBar);
    const Screen& screen = GlobManager::instance().screen();
    p->setupRootPos({40, screen.height() - 60 - p->height()});

    const BoxInt area = p->getUserArea();
    TabbedDialogue::InitArgs t(static_cast<unsigned short>(area.width() - 2 * gap), static_cast<unsigned short>(area.height() - 3 * gap - row));
    auto* tabs = p->createWidget<TabbedDialogue>(t, Glob::UserTopLeft(gap, gap));
    tabs->addTab(L"Rows");
    tabs->addTab(L"Panes");
    tabs->addPageForTab(0, blankPage(tabs));
    tabs->addPageForTab(1, blankPage(tabs));
    addRows(static_cast<StandardPanel*>(tabs->getPage(0)), p, gap, row);
    addPanes(static_cast<StandardPanel*>(tabs->getPage(1)), gap);

    StatusMessage::InitArgs s(L"Ready", static_cast<unsigned short>(area.width() - 2 * gap), static_cast<unsigned short>(row));
    p->status = p->createWidget<StatusMessage>(s, Glob::UserBottomLeft(gap, gap));
    GlobManager::instance().realize(p);
    Drawable::enableRedraws();

    make_warn(L"Replace file", L"A file called \"Reel 3.mov\" is already in the output folder. Replace it?", {L"Replace", L"Keep both"}, {}, p,
              false);
}

GallerySceneRegistration panels("panels", "Titled rows, a group of swatches, split panes, tabs, a status line and a warning", buildPanels);

} // namespace
