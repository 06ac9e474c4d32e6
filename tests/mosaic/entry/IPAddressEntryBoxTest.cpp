#include "entry/IPAddressEntryBox.h"
#include "core/KeyCodes.h"
#include "draw/UifStd.h"
#include "entry/CustomTextBox.h"
#include "glob/Messaging.h"
#include "platform/OS.h"
#include "testkit/TestKit.h"

#include <string>
#include <vector>

namespace {

// A panel that keeps the messages it hears.
class Listener : public StandardPanel {
public:
    using StandardPanel::StandardPanel;
    int handleMessageEvent(const LightweightString<char>& message, Glob*) override {
        heard.push_back(message.str());
        return 1;
    }
    std::vector<std::string> heard;
};

class AddressEntry : public TestKit::ScreenTest {
protected:
    IPAddressEntryBox* make(const wchar_t* address, bool withPort) {
        StandardPanel::InitArgs hostArgs(400, 80);
        hostArgs.palette = UifStd::instance().getColourScheme();
        host = TestKit::realize(new Listener(hostArgs));
        IPAddressEntryBox::InitArgs args(address, withPort, static_cast<unsigned short>(TextBox::calcHeight()));
        auto* w = host->createWidget<IPAddressEntryBox>(args, Glob::BottomLeft(10, 10));
        w->setName("address");
        TestKit::pump();
        return w;
    }
    static void focus(const char* name) {
        ASSERT_TRUE(TestKit::find(name));
        TestKit::find(name)->claimKbdFocus();
        TestKit::pump();
    }
    static CustomTextBox* focused() { return dynamic_cast<CustomTextBox*>(get_kbd_focus()); }
    Listener* host = nullptr;
};

TEST_F(AddressEntry, ThreeDigitsOrADotCarryTheCaretIntoTheNextBox) {
    IPAddressEntryBox* w = make(L"", false);
    ASSERT_TRUE(TestKit::typeInto("octet1", L"192"));
    ASSERT_EQ(focused(), w->entryBox(1));
    EXPECT_EQ(focused()->getCursorPosition(), 0u);
    // Key by key, each digit lands where the caret went before it; text that comes
    // in one piece is spread the same way.
    for (wchar_t c : std::wstring(L"16.0")) TestKit::typeText(LightweightString<wchar_t>(1, c));
    TestKit::typeText(L".7");
    TestKit::pump();
    EXPECT_EQ(w->getURI(), L"192.16.0.7");
    EXPECT_EQ(focused(), w->entryBox(3));
    TestKit::typeText(L".");
    EXPECT_EQ(focused(), w->entryBox(3)) << "a dot at the end of the last box goes nowhere";
    EXPECT_EQ(w->getURI(), L"192.16.0.7");
}

TEST_F(AddressEntry, BackspaceAndLeftAtTheStartGoBackWithoutDeleting) {
    IPAddressEntryBox* w = make(L"10.20.30.40", false);
    focus("octet3");
    TestKit::pressKey(Keys::Backspace); // deletes the selected "30"
    TestKit::pressKey(Keys::Backspace);
    ASSERT_EQ(focused(), w->entryBox(1));
    EXPECT_EQ(focused()->getCursorPosition(), 2u);
    EXPECT_EQ(w->getURI(), L"10.20..40");
    TestKit::pressKey(Keys::Left);
    TestKit::pressKey(Keys::Left);
    TestKit::pressKey(Keys::Left);
    EXPECT_EQ(focused(), w->entryBox(0));
    TestKit::pressKey(Keys::Home);
    TestKit::pressKey(Keys::Left);
    EXPECT_EQ(focused(), w->entryBox(0)) << "nothing before the first box";
    TestKit::pressKey(Keys::End);
    TestKit::pressKey(Keys::Right);
    EXPECT_EQ(focused(), w->entryBox(1));
}

TEST_F(AddressEntry, PasteFillsEveryBoxTakesALoneNumberAndRefusesBadText) {
    IPAddressEntryBox* w = make(L"1.1.1.1:80", true);
    focus("octet3");
    OS()->setClipboardText(L"192.168.001.010:8080");
    TestKit::pressKey('V', Modifiers::Control);
    EXPECT_EQ(w->getURI(), L"192.168.1.10:8080");
    OS()->setClipboardText(L"7.x.8.9");
    TestKit::pressKey(Keys::Insert, Modifiers::Shift);
    EXPECT_EQ(w->getURI(), L"192.168.1.10:8080") << "a dotted text that is no address changes nothing";
    focus("port");
    OS()->setClipboardText(L"443");
    TestKit::pressKey(Keys::Insert, Modifiers::Shift);
    EXPECT_EQ(w->getURI(), L"192.168.1.10:443");
}

TEST_F(AddressEntry, TheLineIsTheBoxesAsTypedEmptyOnesIncluded) {
    IPAddressEntryBox* w = make(L"", true);
    EXPECT_EQ(w->getURI(), L":");
    w->entryBox(2)->setString(L"3");
    w->entryBox(3)->setString(L"999");
    EXPECT_EQ(w->getURI(), L"3.999:") << "leading empty boxes leave no dots; range is not checked";
    EXPECT_FALSE(w->setURI(L"1.2.3"));
    EXPECT_EQ(w->getURI(), L"3.999:");
    EXPECT_EQ(IPAddressEntryBox::calcWidth(true) - IPAddressEntryBox::calcWidth(false),
              IPAddressEntryBox::calcBoxWidth(L"12345") + IPAddressEntryBox::gap());
}

TEST_F(AddressEntry, ReturnGoesToTheOwnerAndTabWalksTheBoxes) {
    IPAddressEntryBox* w = make(L"1.2.3.4", true);
    focus("octet1");
    TestKit::pressKey(Keys::Tab);
    EXPECT_EQ(focused(), w->entryBox(1));
    TestKit::pressKey(Keys::Tab, Modifiers::Shift);
    EXPECT_EQ(focused(), w->entryBox(0));
    TestKit::pressKey(Keys::Return);
    TestKit::pump();
    EXPECT_EQ(host->heard, std::vector<std::string>{IPAddressEntryBox::kReturnPressedMsg});
}

TEST_F(AddressEntry, DotsAndColonArePaintedInTheGaps) {
    IPAddressEntryBox* w = make(L"1.2.3.4:5", true);
    const std::uint32_t bg = TestKit::globPixel(w, w->entryBox(0)->box().x2 + 1, w->height() - 1);
    for (std::size_t i = 0; i < 4; ++i) {
        BoxInt gap(w->entryBox(i)->box().x2, 0, w->entryBox(i + 1)->box().x1, w->height());
        EXPECT_GT(TestKit::inkPixels(w, gap, bg), 0) << "gap " << i;
    }
    BoxInt colon(w->entryBox(3)->box().x2, 0, w->entryBox(4)->box().x1, w->height());
    BoxInt dot(w->entryBox(0)->box().x2, 0, w->entryBox(1)->box().x1, w->height());
    EXPECT_GT(TestKit::inkPixels(w, colon, bg), TestKit::inkPixels(w, dot, bg));
}

} // namespace
