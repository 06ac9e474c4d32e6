#include "entry/form.h"
#include "controls/Checkbox.h"
#include "controls/Menu.h"
#include "controls/TitleButton.h"
#include "controls/TitleMenuButton.h"
#include "controls/TitleTextBox.h"
#include "core/KeyCodes.h"
#include "draw/UifStd.h"
#include "entry/fo_bool.h"
#include "entry/fo_cycle.h"
#include "entry/fo_gench.h"
#include "entry/fo_path.h"
#include "entry/fo_v_dbl.h"
#include "entry/fo_v_int.h"
#include "entry/form_update_table.h"
#include "glob/Messaging.h"
#include "testkit/TestKit.h"

#include <string>
#include <vector>

namespace {

// The form's owner: keeps the lines it hears, and answers a request for choices.
class Owner : public StandardPanel {
public:
    using StandardPanel::StandardPanel;
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override {
        heard.push_back(message.str());
        if (auto* g = dynamic_cast<fo_gench*>(sender); g && message.startsWith(form::kChoicesWantedMsg)) {
            g->m_accept_choices({L"Arial", L"Courier"});
            g->m_make_choices_menu();
        }
        return 1;
    }
    std::vector<std::string> heard;
};

constexpr unsigned short kRowWidth = 320, kRowHeight = 24;

class Forms : public TestKit::ScreenTest {
protected:
    void SetUp() override {
        StandardPanel::InitArgs args(60, 60);
        owner = TestKit::realize(new Owner(args), {10, 10});
        f = TestKit::realize(new form(360, 360, owner, 1, UifStd::instance().getColourScheme(), L"Settings", 0.0), {200, 100});
    }
    template <class T>
    T* add(T* e) {
        f->m_add_element(e);
        TestKit::pump();
        return e;
    }
    static void typeIntoEntry(fo_entry* e, const wchar_t* text) { ASSERT_TRUE(TestKit::typeInto(e->textBox()->getTextBox(), text)); }
    Owner* owner = nullptr;
    form* f = nullptr;
};

TEST_F(Forms, AnIntegerOutOfRangeIsCorrectedOnLeavingAndSentOnReturn) {
    auto* count = add(new fo_v_int(kRowWidth, kRowHeight, 0, L"Count", 1, 10, 0.5));
    auto* name = add(new fo_entry(kRowWidth, kRowHeight, 1, L"Name", 0, 0.5));
    typeIntoEntry(count, L"25");
    TestKit::pressKey(Keys::Tab);
    TestKit::pump();
    EXPECT_TRUE(name->textBox()->getTextBox()->hasKbdFocus());
    EXPECT_EQ(count->textBox()->getString(), L"10");
    EXPECT_TRUE(owner->heard.empty()) << "nothing goes up before Return";
    TestKit::pressKey(Keys::Tab, Modifiers::Shift);
    TestKit::pressKey(Keys::Return);
    TestKit::pump();
    EXPECT_EQ(owner->heard, std::vector<std::string>{"FormUp 000 10"});
    EXPECT_EQ(count->m_get_value(), 10);
    EXPECT_EQ(f->current(), 0);
    typeIntoEntry(name, L"Clip");
    TestKit::pressKey(Keys::Return);
    TestKit::pump();
    EXPECT_EQ(owner->heard.back(), "FormUp 001 Clip");
    EXPECT_EQ(f->current(), 1) << "Return gives the element the focus";
}

TEST_F(Forms, RangesAreSaneAndBoundsExactAtTheShownPrecision) {
    auto* backwards = add(new fo_v_int(kRowWidth, kRowHeight, 0, L"N", 5, 1, 0.5));
    backwards->m_set_entry(L"3");
    EXPECT_EQ(backwards->m_get_value(), 0);
    auto* ratio = add(new fo_v_dbl(kRowWidth, kRowHeight, 1, L"Ratio", 0.126, 0.999, 2, 0.5));
    EXPECT_DOUBLE_EQ(ratio->minimum(), 0.13);
    EXPECT_DOUBLE_EQ(ratio->maximum(), 1.0);
    EXPECT_EQ(ratio->length(), 4);
    ratio->m_set_entry(L"0.5");
    EXPECT_EQ(ratio->textBox()->getString(), L"0.50");
    ratio->m_set_entry(L"");
    EXPECT_EQ(ratio->textBox()->getString(), L"") << "an empty field may stand";
    EXPECT_DOUBLE_EQ(ratio->m_get_value(), 0.13);
    ratio->m_set_entry(L"nan");
    EXPECT_EQ(ratio->textBox()->getString(), L"0.13");
    auto* wide = add(new fo_v_dbl(kRowWidth, kRowHeight, 2, L"Gain", -250.0, 12.0, -3, 0.5));
    EXPECT_EQ(wide->length(), 4) << "negative precision is none; three digits and a sign";
}

TEST_F(Forms, NumbersGoUpInAtLeastThreeDigitsAndLongTextIsCutNotOverrun) {
    auto* seven = add(new fo_entry(kRowWidth, kRowHeight, 7, L"A", 0, 0.5));
    auto* big = add(new fo_entry(kRowWidth, kRowHeight, 1234, L"B", 0, 0.5));
    typeIntoEntry(seven, L"x");
    TestKit::pressKey(Keys::Return);
    typeIntoEntry(big, std::wstring(600, L'\u00e9').c_str());
    TestKit::pressKey(Keys::Return);
    TestKit::pump();
    ASSERT_EQ(owner->heard.size(), 2u);
    EXPECT_EQ(owner->heard[0], "FormUp 007 x");
    EXPECT_EQ(owner->heard[1].substr(0, 12), "FormUp 1234 ");
    EXPECT_LT(owner->heard[1].size(), 128u);
}

TEST_F(Forms, ChoicesAndCheckboxesReportByTheKeyboard) {
    auto* plain = add(new fo_choic(kRowWidth, kRowHeight, 0, UIString(L"P"), {}, 0.5));
    EXPECT_EQ(plain->choices().at(0).getString(), L"__void");
    auto* cycle = add(new fo_cycle(kRowWidth, kRowHeight, 1, UIString(L"Mode"), {UIString(L"Alpha"), UIString(L"Beta")}, 0.5));
    auto* check = add(new fo_bool(kRowWidth, kRowHeight, 2, L"Loop", false));
    cycle->button()->getBtn()->claimKbdFocus();
    TestKit::pressKey(Keys::Down);
    TestKit::pump();
    EXPECT_EQ(owner->heard, std::vector<std::string>{"FormUp 001 Beta"});
    EXPECT_EQ(f->m_get_element_choice_state(1), 1);
    TestKit::pressKey(Keys::Tab);
    TestKit::pressKey(Keys::Space);
    TestKit::pump();
    EXPECT_EQ(owner->heard.back(), "FormUp 002 Yes");
    f->m_set_element_entry(2, L"yES");
    EXPECT_TRUE(check->state());
    f->m_set_element_entry(2, L"Yes ");
    EXPECT_FALSE(check->state());
    f->m_set_element_choice_state(0, 5, 1);
    EXPECT_EQ(f->m_get_element_choice_state(0), 0) << "an index past the end does nothing";
    EXPECT_EQ(f->m_get_element_type(2), kFormBool);
    EXPECT_EQ(f->m_get_element_type(9), 0);
    EXPECT_EQ(f->m_get_element_entry(-1), L"");
}

TEST_F(Forms, AGeneratedChoiceAsksTheOwnerAndIsChosenFromItsMenu) {
    auto* idle = add(new fo_gench(kRowWidth, kRowHeight, 0, UIString(L"Idle"), nullptr, 0.5));
    auto* fonts = add(new fo_gench(kRowWidth, kRowHeight, 1, UIString(L"Font"), "fonts", 0.5));
    callMessage(fo_gench::kLaunchMsg, idle, idle);
    TestKit::pump();
    EXPECT_TRUE(owner->heard.empty()) << "no action, no request";
    EXPECT_EQ(f->m_get_element_action(1), std::string("fonts"));
    EXPECT_EQ(f->m_get_element_action(0), nullptr);
    ASSERT_TRUE(TestKit::click(fonts->button()->getBtn()));
    TestKit::pump();
    ASSERT_FALSE(owner->heard.empty());
    EXPECT_EQ(owner->heard[0], "FoElDn 001 fonts");
    ASSERT_TRUE(fonts->menu());
    TestKit::pressKey(Keys::End);
    TestKit::pressKey(Keys::Return);
    TestKit::pump();
    EXPECT_EQ(owner->heard.back(), "FormUp 001 Courier");
    EXPECT_EQ(fonts->m_get_choice_state(), 1);
    EXPECT_FALSE(fonts->menu()) << "the gone menu is forgotten";
}

TEST_F(Forms, FocusRequestsTablesAndPootFollowTheirRules) {
    auto* a = add(new fo_path(kRowWidth, kRowHeight, 0, L"Path", 0, 0.5));
    auto* b = add(new fo_entry(kRowWidth, kRowHeight, 1, L"Copy", 0, 0.5));
    callMessage("FoElFR 1", f, f);
    EXPECT_EQ(f->current(), 1);
    EXPECT_TRUE(b->hasFocus());
    callMessage("FoElFR x", f, f);
    callMessage("FoElFR 99", f, f);
    EXPECT_EQ(f->current(), 1);
    a->m_set_entry(L"/media/clips");
    form_update_table table[] = {{f, 0, f, 1}, {nullptr, -1, nullptr, 0}};
    EXPECT_EQ(form::m_update_others(table, f, 1, L"nope"), 0);
    EXPECT_EQ(b->m_get_entry(), L"");
    EXPECT_EQ(form::m_update_others(table, f, 0, a->m_get_entry()), 1);
    EXPECT_EQ(b->m_get_entry(), L"/media/clips");
    EXPECT_EQ(a->lastGood(), L"/media/clips");
    f->m_send_unread_entry_elements();
    const GlobHandle<form> alive(f);
    sendMessage(StandardPanel::pootMsg, f);
    TestKit::pump();
    EXPECT_FALSE(alive) << "poot closes the form";
    EXPECT_TRUE(owner->heard.empty()) << "no entry is unread";
}

} // namespace
