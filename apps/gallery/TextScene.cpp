// The toolkit's text controls in their states: a form of titled boxes, normal,
// focused with a selection, inactive, with a placeholder and obfuscated; number
// boxes bound to one whole number; a multi-line note, and a label with links.
#include "GalleryScene.h"

#include "controls/LinkAwareMultiLineTextBox.h"
#include "controls/NumericTextBox.h"
#include "controls/TitleTextBox.h"
#include "draw/Screen.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "glob/Messaging.h"
#include "value/ValAdaptor.h"

namespace {

class TextPanel : public StandardPanel {
public:
    explicit TextPanel(const InitArgs& args) : StandardPanel(args) {}
    const char* idstring() const override { return "TextPanel"; }

    ValServer<int> opacity{75};
};

template <class T>
T* place(StandardPanel* p, typename T::InitArgs args, const WidgetPosition& at) {
    T* w = p->createWidget<T>(args, at);
    if constexpr (std::is_base_of_v<TabOrderable, T>)
        p->tabOrder().addTabStop(*w);
    else if constexpr (std::is_base_of_v<TabOrderableHost, T>)
        p->tabOrder().addTabStopsFrom(*w);
    return w;
}

TitleTextBox* formRow(StandardPanel* p, const wchar_t* legend, const wchar_t* text, Glob* above, int titleWidth) {
    const UifStd& u = UifStd::instance();
    int width = p->getUserArea().width() - 2 * u.getWidgetGap();
    TitleTextBox::InitArgs args(UIString(legend), static_cast<unsigned short>(width - titleWidth), static_cast<unsigned short>(width),
                                static_cast<unsigned short>(TextBox::calcHeight()), TitleTextBox::kLegendAgainstBox);
    args.text = UIString(text);
    return place<TitleTextBox>(p, args, above ? Glob::Below(u.getRowGap(), above) : Glob::UserTopLeft(u.getWidgetGap(), u.getWidgetGap()));
}

StandardPanel* buildForm(XY<int> at) {
    const UifStd& u = UifStd::instance();
    int row = TextBox::calcHeight();
    StandardPanel* p = GalleryScene::makePanel(440, 7 * (row + u.getRowGap()) + u.getTitleHeight() + 3 * u.getWidgetGap(), L"Text boxes", at);
    int title = 120;
    TitleTextBox* name = formRow(p, L"Clip name", L"Interview, take 3", nullptr, title);
    TitleTextBox* notes = formRow(p, L"Focused", L"Selected words show in the selection colour", name, title);
    TitleTextBox* inactive = formRow(p, L"Inactive", L"Locked by the project", notes, title);
    inactive->setActive(false, kNoRedraw);
    TitleTextBox* search = formRow(p, L"Placeholder", L"", inactive, title);
    search->setPlaceholder(UIString(L"Search the bin\u2026"));
    TitleTextBox* password = formRow(p, L"Password", L"correct horse", search, title);
    password->setObfuscatedDisplay(true);
    TitleTextBox* unicode = formRow(p, L"Any text", L"Caf\u00e9 \u2014 \u00fcber na\u0308ive \u03bb\u03cc\u03b3\u03bf\u03c2", password, title);
    TitleTextBox* scrolled = formRow(p, L"Long", L"", unicode, title);
    scrolled->setString(L"A line too long for its box shows its start until the box has the focus, then scrolls with the caret");
    scrolled->getTextBox()->setCursorPosition(scrolled->getString().size());

    GlobManager::instance().realize(p);
    TextBox* focused = notes->getTextBox();
    set_kbd_focus(focused);
    focused->setSelection(9, 14);
    return p;
}

StandardPanel* buildNumbersAndNotes(StandardPanel* form) {
    const UifStd& u = UifStd::instance();
    int gap = u.getWidgetGap(), row = TextBox::calcHeight();
    StandardPanel* p = GalleryScene::makePanel<TextPanel>(420, 230, L"Numbers and notes", {0, 0});
    GlobCreationInfo size(420, 230);
    p->setupRootPos(GlobManager::instance().getPosForGlob(size, Glob::RightOf(gap * 3, form, kAlignEnd)));
    auto& opacity = static_cast<TextPanel*>(p)->opacity;
    using Adaptor = ValAdaptor<LightweightString<wchar_t>, int>;

    // Two views of one whole number: what is committed in either shows in both.
    auto* percent = place<NumericTextBox>(p, NumericTextBox::InitArgs(UIString(), 90, static_cast<unsigned short>(row)), Glob::UserTopLeft(gap, gap));
    percent->setValueRange(0, 100);
    percent->setAlignment(Glib::TextAlignment(Glib::kAlignRight, Glib::kAlignMiddle));
    percent->setDisplaySuffix(L"%");
    percent->setDataAdaptor(Zn::Ptr<Adaptor>(new Adaptor(&opacity)));
    TitleTextBox::InitArgs same(UIString(L"Same value"), 90, 220, static_cast<unsigned short>(row), TitleTextBox::kLegendAgainstBox);
    auto* twin = place<TitleTextBox>(p, same, Glob::RightOf(gap, percent));
    twin->setDataAdaptor(Zn::Ptr<Adaptor>(new Adaptor(&opacity)));

    MultiLineTextBox::InitArgs note(UIString(L"Notes for the colourist:\nwarm the skin tones in the second half, and keep the "
                                             L"highlights of the window from clipping.\n\nLast line."),
                                    static_cast<unsigned short>(p->getUserArea().width() - 2 * gap),
                                    static_cast<unsigned short>(MultiLineTextBox::calcHeightForLines(5)));
    auto* notes = place<MultiLineTextBox>(p, note, Glob::Below(gap, percent));

    LinkAwareMultiLineTextBox::InitArgs label(UIString(L"Links open in the browser: see https://example.org/mosaic/manual "
                                                       L"or (for the codecs) http://example.com/formats."),
                                              static_cast<unsigned short>(p->getUserArea().width() - 2 * gap),
                                              static_cast<unsigned short>(MultiLineTextBox::calcHeightForLines(3, 0, 0)));
    auto* links = p->createWidget<LinkAwareMultiLineTextBox>(label, Glob::Below(gap, notes));
    links->setEditable(false);
    links->setMargin(0);

    GlobManager::instance().realize(p);
    return p;
}

void buildText() {
    Drawable::disableRedraws();
    const Screen& screen = GlobManager::instance().screen();
    StandardPanel* form = buildForm({40, screen.height() - 40 - 330});
    buildNumbersAndNotes(form);
    Drawable::enableRedraws();
}

GallerySceneRegistration text("text-controls", "Text boxes in their states, number boxes bound to one value, notes and links", buildText);

} // namespace
