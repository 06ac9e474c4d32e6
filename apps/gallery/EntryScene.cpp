// Entry: a form with one element of every kind, an address with its port typed as
// one line of boxes, a sign-in widget and a date, each reachable by Tab.
#include "GalleryScene.h"

#include "controls/Button.h"
#include "controls/TextBox.h"
#include "controls/TextLabel.h"
#include "core/Utf8.h"
#include "entry/IPAddressEntryBox.h"
#include "entry/SignInWidget.h"
#include "entry/datecanvas.h"
#include "entry/fo_bool.h"
#include "entry/fo_cycle.h"
#include "entry/fo_gench.h"
#include "entry/fo_path.h"
#include "entry/fo_v_dbl.h"
#include "entry/fo_v_int.h"
#include "entry/form.h"
#include "glob/GlobManager.h"

namespace {

// Shows the last line the form sent, and answers a request for generated choices.
class EntryPanel : public StandardPanel {
public:
    explicit EntryPanel(const InitArgs& args) : StandardPanel(args) {}
    const char* idstring() const override { return "EntryPanel"; }
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override {
        if (auto* g = dynamic_cast<fo_gench*>(sender); g && message.startsWith(form::kChoicesWantedMsg)) {
            g->m_accept_choices({UIString(L"Sans"), UIString(L"Serif"), UIString(L"Mono")});
            g->m_make_choices_menu();
            return 1;
        }
        if (message.startsWith(form::kOwnerMsg) && lastLine) lastLine->setText(UIString(fromUTF8(message)));
        if (message == IPAddressEntryBox::kReturnPressedMsg && lastLine)
            lastLine->setText(UIString(LightweightString<wchar_t>(L"Address: " + address->getURI().str())));
        return StandardPanel::handleMessageEvent(message, sender);
    }
    TextLabel* lastLine = nullptr;
    IPAddressEntryBox* address = nullptr;
};

void buildEntry() {
    const UifStd& u = UifStd::instance();
    const int gap = u.getWidgetGap(), row = u.getRowHeight();
    const int width = 420;
    Drawable::disableRedraws();
    auto* p = GalleryScene::makePanel<EntryPanel>(width, 4 * (row + gap) + SignInWidget::calcHeight() + u.getTitleHeight(), L"Entry", {60, 380});
    const int inner = p->getUserArea().width() - 2 * gap;

    IPAddressEntryBox::InitArgs addressArgs(L"", true, static_cast<unsigned short>(TextBox::calcHeight()));
    p->address = p->createWidget<IPAddressEntryBox>(addressArgs, Glob::UserTopLeft(gap, gap));
    p->address->setName("address");
    SignInWidget::InitArgs signInArgs(static_cast<unsigned short>(inner));
    auto* signIn = p->createWidget<SignInWidget>(signInArgs, Glob::Below(gap, p->address));
    signIn->setName("sign-in");
    signIn->setGhostLabels(UIString(761), UIString(762));
    auto* date =
        new datecanvas(p->getPalette(), static_cast<unsigned short>(inner), static_cast<unsigned short>(Button::calcHeight()), 0, p->canvas());
    p->addChild(date, Glob::Below(gap, signIn));
    date->setName("date");
    TextLabel::InitArgs lineArgs(UIString(L"Press Return in a box"), static_cast<unsigned short>(inner), static_cast<unsigned short>(row));
    p->lastLine = p->createWidget<TextLabel>(lineArgs, Glob::Below(gap, date));
    p->lastLine->setName("last-line");
    p->tabOrder().addTabStopsFrom(*p->address);
    p->tabOrder().addTabStopsFrom(*signIn);
    p->tabOrder().addTabStopsFrom(*date);

    auto* f = new form(static_cast<unsigned short>(width), static_cast<unsigned short>(8 * (row + gap) + u.getTitleHeight()), p, 1, p->getPalette(),
                       L"Form", 0.0);
    f->setupRootPos({60 + width + 40, 380});
    const auto w = static_cast<unsigned short>(width - 4 * gap), h = static_cast<unsigned short>(row);
    f->m_add_element(new fo_v_int(w, h, 0, L"Copies", 1, 10, 0.5));
    f->m_add_element(new fo_v_dbl(w, h, 1, L"Gain", 0.0, 2.0, 2, 0.5));
    f->m_add_element(new fo_entry(w, h, 2, L"Title", 0, 0.5));
    f->m_add_element(new fo_path(w, h, 3, L"Folder", 0, 0.5));
    f->m_add_element(new fo_cycle(w, h, 4, UIString(L"Quality"), {UIString(L"Draft"), UIString(L"Good"), UIString(L"Best")}, 0.5));
    f->m_add_element(new fo_gench(w, h, 5, UIString(L"Font"), "fonts", 0.5));
    f->m_add_element(new fo_bool(w, h, 6, L"Loop playback", true));
    f->m_set_element_entry(0, L"2");
    f->m_set_element_entry(3, L"/media/clips");
    f->m_set_element_entry(5, L"Sans"); // the font until the owner is asked for the list

    GlobManager::instance().realize(p);
    GlobManager::instance().realize(f);
    Drawable::enableRedraws();
    GlobManager::instance().runUntilIdle();
}

GallerySceneRegistration entry("entry",
                               "A form with one element of every kind reporting to its owner, an address with its port typed as one "
                               "line, a sign-in widget and a date",
                               buildEntry);

} // namespace
