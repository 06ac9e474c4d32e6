// Menus: titled drop-downs of frame rates and of video formats grouped under
// headings with their sizes beside them, a drop-down bound to a whole number that a
// label follows, a context menu on the panel, and the format menu open.
#include "GalleryScene.h"

#include "controls/DropDownMenuButton.h"
#include "controls/Menu.h"
#include "controls/StandardPanel.h"
#include "controls/TextLabel.h"
#include "controls/TitleMenuButton.h"
#include "draw/Screen.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "value/ValAdaptor.h"

#include <memory>
#include <string>

namespace {

// A label that shows which compression is chosen as the choice changes.
class ChoiceLabel : public ValClient<int> {
public:
    ChoiceLabel(ValServer<int>* server, TextLabel* label, std::vector<UIString> names)
        : ValClient<int>(server), label_(label), names_(std::move(names)) {
        valChangedNtfy();
    }
    void valChangedNtfy() override {
        int i = *this;
        LightweightString<wchar_t> name = (i >= 0 && i < static_cast<int>(names_.size())) ? names_[i].getString() : L"none";
        label_->setText(UIString(L"Chosen: " + name));
    }

private:
    TextLabel* label_;
    std::vector<UIString> names_;
};

class MenusPanel : public StandardPanel {
public:
    explicit MenusPanel(const InitArgs& args) : StandardPanel(args) {}
    const char* idstring() const override { return "MenusPanel"; }

    ValServer<int> compression{1};
    std::unique_ptr<ChoiceLabel> follower;
};

std::vector<MenuItem> formatRows(const Palette& p) {
    auto heading = [&](const wchar_t* text) { return MenuItem(UIString(text), {}, p.subheadingText(), kMenuItemHeading); };
    auto format = [](const wchar_t* text, const wchar_t* size) {
        MenuItem m{UIString(text)};
        m.setSecondText(UIString(size));
        return m;
    };
    MenuItem cinema = format(L"4K DCI 24p", L"4096x2160");
    cinema.setActive(false);
    return {heading(L"High definition"),
            format(L"1080p 25", L"1920x1080"),
            format(L"1080i 50", L"1920x1080"),
            format(L"720p 50", L"1280x720"),
            heading(L"Standard definition"),
            format(L"PAL", L"720x576"),
            format(L"NTSC", L"720x486"),
            heading(L"Cinema"),
            cinema};
}

void buildMenus() {
    const UifStd& u = UifStd::instance();
    const int gap = u.getWidgetGap(), row = u.getRowHeight();
    Drawable::disableRedraws();
    StandardPanel::InitArgs args(420, static_cast<unsigned short>(5 * row + 7 * gap + u.getTitleHeight()));
    args.palette = u.getColourScheme();
    auto* p = new MenusPanel(args);
    p->setBorder(StandardPanel::getDefaultBorder());
    p->setTitle(UIString(L"Menus"));
    p->addStandardWidgets(StandardPanel::kCloseBox | StandardPanel::kTitleBar);
    const Screen& screen = GlobManager::instance().screen();
    p->setupRootPos({40, screen.height() - 60 - p->height()});
    const unsigned short inner = static_cast<unsigned short>(p->getUserArea().width() - 2 * gap);

    TitleMenuButton::InitArgs rates(UIString(L"Frame rate"), {L"23.976", L"24", L"25", L"29.97", L"50", L"59.94"}, 0, inner,
                                    static_cast<unsigned short>(row));
    auto* rate = p->createWidget<TitleMenuButton>(rates, Glob::UserTopLeft(gap, gap));
    rate->setSelectedItem(MenuItemIndex(L"25"), kNoRedraw);

    TitleMenuButton::InitArgs formats(UIString(L"Video format"), {}, 180, inner, static_cast<unsigned short>(row));
    formats.items = formatRows(p->getPalette());
    auto* format = p->createWidget<TitleMenuButton>(formats, Glob::Below(gap, rate));

    const std::vector<UIString> codecs{L"Uncompressed", L"ProRes 422", L"DNxHR HQ", L"H.264"};
    DropDownMenuButton::InitArgs codecArgs(codecs, static_cast<unsigned short>(DropDownMenuButton::calcWidth(codecs)),
                                           static_cast<unsigned short>(row));
    auto* codec = p->createWidget<DropDownMenuButton>(codecArgs, Glob::Below(gap, format));
    codec->setDataAdaptor(Zn::Ptr<ValAdaptorBase<int>>(new ValAdaptor<int, int>(&p->compression)));
    codec->getDataAdaptor()->forceWidgetUpdate(kNoRedraw);
    TextLabel::InitArgs chosenArgs(UIString(L""), 200, static_cast<unsigned short>(row));
    auto* chosen = p->createWidget<TextLabel>(chosenArgs, Glob::RightOf(gap, codec, kAlignCentre));
    p->follower = std::make_unique<ChoiceLabel>(&p->compression, chosen, codecs);

    TextLabel::InitArgs hintArgs(UIString(L"Right-click the panel for its context menu"), inner, static_cast<unsigned short>(row));
    auto* hint = p->createWidget<TextLabel>(hintArgs, Glob::UserBottomLeft(gap, gap));
    hint->setPalette(makeTextPalette(p->getPalette().text(kTextDimmed), p->getPalette()));

    MenuItem copy(UIString(L"Copy settings"), WidgetCallback("copy"));
    copy.setSecondText(UIString(L"Ctrl+C"));
    MenuItem paste(UIString(L"Paste settings"), WidgetCallback("paste"));
    paste.setSecondText(UIString(L"Ctrl+V"));
    p->addMenuItem(copy);
    p->addMenuItem(paste, false);
    p->addMenuItem(MenuItem());
    p->addMenuItem(MenuItem(UIString(L"Reset to defaults"), WidgetCallback("reset")));

    GlobManager::instance().realize(p);
    Drawable::enableRedraws();
    GlobManager::instance().runUntilIdle();
    if (format->getBtn()->displayMenu())
        if (Menu* m = format->getBtn()->getMenu()) m->setHighlightedRow(3);
}

GallerySceneRegistration menus("menus", "Drop-down and titled menu buttons, headings, second texts, a bound choice and a context menu; a menu open",
                               buildMenus);

} // namespace
