// The tutorial catalogue of the sample folder shipped with the tests, by category.
#include "GalleryScene.h"

#include "controls/StandardPanel.h"
#include "core/Utf8.h"
#include "draw/CanvasRenderer.h"
#include "draw/Screen.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "tutorials/TutorialsManager.h"

namespace {

// Lines of text: category headings and the tutorials under them.
class CatalogueView : public Glob {
public:
    struct Line {
        LightweightString<wchar_t> text;
        bool heading;
    };
    CatalogueView(const GlobCreationInfo& info, std::vector<Line> lines) : Glob(info), lines_(std::move(lines)) {}
    const char* idstring() const override { return "CatalogueView"; }
    void drawBackground() override {
        const UifStd& u = UifStd::instance();
        CanvasRenderer r(canvas());
        r.fill(getPalette().childWindow());
        int top = height() - u.getRowGap();
        for (const Line& l : lines_) {
            int indent = l.heading ? u.getRowGap() * 2 : u.getTextIndent() * 2;
            Glib::FontDesc font = l.heading ? u.getSubheadingFont() : u.getDefaultFont();
            Colour colour = l.heading ? getPalette().subheadingText() : getPalette().text();
            r.render(Glib::TextDescription(BoxInt(indent, top - u.getRowHeight(), width(), top), l.text, font, colour));
            top -= u.getRowHeight();
        }
    }

private:
    std::vector<Line> lines_;
};

void buildCatalogue() {
    TutorialsManager catalogue(fromUTF8(MOSAIC_SAMPLE_TUTORIALS));
    std::vector<CatalogueView::Line> lines;
    for (const auto& category : catalogue.categories()) {
        lines.push_back({category.empty() ? LightweightString<wchar_t>(L"(no category)") : category, true});
        for (const auto& t : catalogue.getCategoryContents(category)) {
            if (t->getName().empty()) {
                lines.push_back({L"(unreadable) " + t->getID(), false});
                continue;
            }
            const auto phases = t->getNumPhases();
            lines.push_back({t->getName() + L"  \u2014 " + LightweightString<wchar_t>(fromUTF8(std::to_string(phases).c_str())) +
                                 (phases == 1 ? L" phase" : L" phases"),
                             false});
        }
    }
    const UifStd& u = UifStd::instance();
    XY<int> user(460, static_cast<int>(lines.size()) * u.getRowHeight() + 2 * u.getRowGap());
    XY<int> size = StandardPanel::calcPanelSize(user, StandardPanel::kCloseBox, StandardPanel::getDefaultBorder());
    StandardPanel::InitArgs args(static_cast<unsigned short>(size.x), static_cast<unsigned short>(size.y));
    args.palette = u.getColourScheme();
    auto* panel = new StandardPanel(args);
    panel->setBorder(StandardPanel::getDefaultBorder());
    panel->setTitle(UIString(L"Tutorials"));
    panel->addStandardWidgets(StandardPanel::kCloseBox | StandardPanel::kTitleBar);
    GlobCreationInfo view(static_cast<unsigned short>(user.x), static_cast<unsigned short>(user.y));
    view.canvas = panel->canvas();
    view.palette = panel->getPalette();
    panel->addChild(new CatalogueView(view, std::move(lines)), Glob::UserTopLeft(0, 0));
    const Screen& screen = GlobManager::instance().screen();
    panel->setupRootPos({40, screen.height() - 40 - size.y});
    GlobManager::instance().realize(panel);
}

GallerySceneRegistration tutorials("tutorials", "The tutorial catalogue of the sample folder, by category", buildCatalogue);

} // namespace
