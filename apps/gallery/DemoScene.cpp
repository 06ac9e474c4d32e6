// The toolkit's own scene: titled panels with furniture, children placed by each
// kind of position, and text drawn in the default, title and monospace fonts.
#include "GalleryScene.h"

#include "controls/StandardPanel.h"
#include "draw/CanvasRenderer.h"
#include "draw/Screen.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"

namespace {

// A swatch with a caption, painted in its own colour.
class Swatch : public Glob {
public:
    struct InitArgs : GlobCreationInfo {
        Colour colour;
        LightweightString<wchar_t> caption;
        InitArgs(int w, int h, const Colour& c, const wchar_t* text)
            : GlobCreationInfo(static_cast<unsigned short>(w), static_cast<unsigned short>(h)), colour(c), caption(text) {}
    };
    explicit Swatch(const InitArgs& a) : Glob(a), colour_(a.colour), caption_(a.caption) {}
    const char* idstring() const override { return "Swatch"; }
    void drawBackground() override {
        CanvasRenderer r(canvas());
        Glib::RectDescription box(BoxInt(0, 0, width(), height()), colour_);
        box.cornerRadius = 4;
        box.outline = getPalette().window(kShadeDarkest);
        box.outlineWidth = 1;
        r.render(box);
        r.render(Glib::TextDescription(BoxInt(0, 0, width(), height()), caption_, UifStd::instance().getDefaultFont(), contrastingText(colour_),
                                       Glib::kAlignCentreH));
    }

private:
    Colour colour_;
    LightweightString<wchar_t> caption_;
};

// Lines of text in the toolkit's fonts.
class TextSample : public Glob {
public:
    using InitArgs = GlobCreationInfo;
    explicit TextSample(const InitArgs& info) : Glob(info) {}
    const char* idstring() const override { return "TextSample"; }
    void drawBackground() override {
        CanvasRenderer r(canvas());
        r.fill(getPalette().childWindow());
        const UifStd& u = UifStd::instance();
        int row = u.getRowHeight(), top = height() - u.getRowGap();
        struct Line {
            const wchar_t* text;
            Glib::FontDesc font;
        } lines[] = {
            {L"Mosaic widgets for editing", u.getTitleFont()},
            {L"Clip \u00e9t\u00e9 \u2014 00:01:23:12 \u2192 Render", u.getDefaultFont()},
            {L"monospace: fps=25 size=1920x1080", u.getMonospaceFont()},
        };
        for (const Line& l : lines) {
            r.render(Glib::TextDescription(BoxInt(u.getTextIndent() / 2, top - row, width(), top), l.text, l.font, getPalette().text()));
            top -= row;
        }
    }
};

constexpr int kFurniture = StandardPanel::kCloseBox | StandardPanel::kTitleBar | StandardPanel::kResizeGrip;

void buildDemo() {
    const UifStd& u = UifStd::instance();
    int gap = u.getWidgetGap();
    Drawable::disableRedraws();

    const Screen& screen = GlobManager::instance().screen();
    StandardPanel* main = GalleryScene::makePanel(520, 340, L"Toolkit demo", {40, screen.height() - 40 - 340}, kFurniture);
    Swatch::InitArgs red(110, u.getRowHeight(), Colour(0.75, 0.2, 0.2), L"Top left");
    Glob* first = main->createWidget<Swatch>(red, Glob::UserTopLeft(gap, gap));
    Swatch::InitArgs green(110, u.getRowHeight(), Colour(0.2, 0.6, 0.3), L"Below");
    main->createWidget<Swatch>(green, Glob::Below(gap, first));
    Swatch::InitArgs blue(110, u.getRowHeight(), Colour(0.2, 0.35, 0.75), L"Right of");
    main->createWidget<Swatch>(blue, Glob::RightOf(gap, first, kAlignCentre));
    Swatch::InitArgs corner(130, u.getRowHeight(), Colour(0.85, 0.65, 0.2), L"Bottom right");
    main->createWidget<Swatch>(corner, Glob::UserBottomRight(gap, gap));
    Swatch::InitArgs centre(140, u.getRowHeight() * 2, Colour(0.55, 0.35, 0.7), L"Centre");
    main->createWidget<Swatch>(centre, Glob::UserCentre(0, 0));
    TextSample::InitArgs text(static_cast<unsigned short>(main->getUserArea().width() - 2 * gap),
                              static_cast<unsigned short>(u.getRowHeight() * 3 + 2 * u.getRowGap()));
    main->createWidget<TextSample>(text, Glob::UserBottomLeft(gap, gap + u.getRowHeight() + gap));
    GlobManager::instance().realize(main);

    StandardPanel* side = GalleryScene::makePanel(300, 220, L"Second panel", {0, 0}, kFurniture);
    GlobCreationInfo sideInfo(300, 220);
    side->setupRootPos(GlobManager::instance().getPosForGlob(sideInfo, Glob::RightOf(gap * 3, main, kAlignEnd)));
    auto* inner = new StandardPanel(StandardPanel::InitArgs(GlobCreationInfo(200, 100, side->getPalette(), true, side->canvas()),
                                                            Border(Border::kSunkenBorder, static_cast<unsigned short>(u.getBorderWidth()), 15)));
    inner->setTitle(UIString(L"Nested"));
    side->addChild(inner, Glob::UserCentre(0, 0));
    GlobManager::instance().realize(side);

    Drawable::enableRedraws();
}

GallerySceneRegistration demo("toolkit-demo", "Titled panels, children placed by position, text in the toolkit's fonts", buildDemo);

} // namespace
