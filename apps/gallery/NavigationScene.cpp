// A three-stage wizard for an export, a page index over 200 pages of clips, and
// split tabs of bins and effects inside a space divider beside a viewer.
#include "GalleryScene.h"

#include "controls/TextLabel.h"
#include "draw/Screen.h"
#include "glob/GlobManager.h"
#include "panels/PageIndexWidget.h"
#include "panels/SpaceDivider.h"
#include "panels/SplitTabsWidget.h"
#include "panels/WizardPanel.h"

#include <algorithm>

namespace {

TextLabel* label(const wchar_t* text, int w = 100, int h = 100) {
    TextLabel::InitArgs args(UIString(text), static_cast<unsigned short>(w), static_cast<unsigned short>(h));
    args.palette = UifStd::instance().getColourScheme();
    auto* l = new TextLabel(args);
    l->setAlignment(Glib::kAlignCentreH);
    return l;
}

// One stage of the export wizard: a page that says what the stage is for.
class ExportStage : public iWizardStage {
public:
    ExportStage(const wchar_t* title, const wchar_t* text) : title_(title), text_(text) {}
    WizardStagePanel* makePage(StandardPanel& wizard, const XY<int>& size, const WidgetPosition& position) override {
        WizardStagePanel::InitArgs args(static_cast<unsigned short>(size.x), static_cast<unsigned short>(size.y));
        auto* page = wizard.createWidget<WizardStagePanel>(args, position);
        TextLabel::InitArgs text(UIString(text_), static_cast<unsigned short>(size.x),
                                 static_cast<unsigned short>(UifStd::instance().getRowHeight()));
        page->createWidget<TextLabel>(text, Glob::UserTopLeft(0, UifStd::instance().getWidgetGap()));
        return page;
    }
    UIString getTitle() const override { return UIString(title_); }

private:
    const wchar_t* title_;
    const wchar_t* text_;
};

void buildWizard(const Screen& screen) {
    WizardPanel::InitArgs args(420, 220);
    args.palette = UifStd::instance().getColourScheme();
    args.stages = {Zn::Ptr<iWizardStage>(new ExportStage(L"Choose the clips", L"Pick the clips of the reel to export.")),
                   Zn::Ptr<iWizardStage>(new ExportStage(L"Choose a format", L"Pick a file type and a compression.")),
                   Zn::Ptr<iWizardStage>(new ExportStage(L"Confirm", L"Export 12 clips as ProRes in a QuickTime file."))};
    auto* wizard = new WizardPanel(args);
    wizard->setName("exportWizard");
    wizard->setupRootPos({40, screen.height() - 60 - wizard->height()});
    GlobManager::instance().realize(wizard);
}

void buildPageIndex(const Screen& screen) {
    const int row = UifStd::instance().getRowHeight();
    const int width = 560, x = std::max(0, std::min(500, screen.width() - width - 20)); // whole on a narrow screen
    auto* p = GalleryScene::makePanel(width, 2 * row + UifStd::instance().getTitleHeight() + 20, L"Clips", {x, screen.height() - 60 - 2 * row - 60});
    PageIndexWidget::InitArgs args(200, 10, 0, static_cast<unsigned short>(row));
    args.currentPage = 57;
    p->createWidget<PageIndexWidget>(args, Glob::UserCentre(0, 0))->setName("clipPages");
    GlobManager::instance().realize(p);
}

void buildDividedTabs(const Screen& screen) {
    auto* p = GalleryScene::makePanel(760, 360, L"Bins and effects", {40, screen.height() - 360 - 340});
    const BoxInt u = p->getUserArea();
    SplitTabsWidget::InitArgs tabs(400, static_cast<unsigned short>(u.height()));
    tabs.palette = p->getPalette();
    tabs.leftPages = {{label(L"Reel 1: 12 clips"), UIString(L"Bins")}, {label(L"Opened today"), UIString(L"Recent")}};
    tabs.rightPages = {{label(L"Blur, Glow, Sharpen"), UIString(L"Effects")}, {label(L"Dissolve, Wipe"), UIString(L"Transitions")}};
    tabs.coalesceWidth = 360;
    auto* split = new SplitTabsWidget(tabs);
    split->setName("galleryTabs");
    SpaceDivider::InitArgs d(static_cast<unsigned short>(u.width()), static_cast<unsigned short>(u.height()), Splitter::kSideBySide, split,
                             label(L"Viewer"), 0.7f);
    p->createWidget<SpaceDivider>(d, Glob::UserBottomLeft(0, 0))->setName("galleryDivider");
    GlobManager::instance().realize(p);
}

void buildNavigation() {
    const Screen& screen = GlobManager::instance().screen();
    Drawable::disableRedraws();
    buildDividedTabs(screen);
    buildPageIndex(screen);
    buildWizard(screen);
    Drawable::enableRedraws();
}

GallerySceneRegistration navigation("navigation", "A wizard, a page index over 200 pages, and split tabs inside a space divider", buildNavigation);

} // namespace
