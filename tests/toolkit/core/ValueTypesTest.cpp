#include "core/Box.h"
#include "core/ColourData.h"
#include "core/Event.h"
#include "core/IdStamp.h"
#include "core/MethodCallback.h"
#include "core/Palette.h"
#include "core/WidgetCallback.h"
#include "draw/GlibDescriptions.h"
#include "glob/Border.h"
#include "platform/ResourceStrings.h"
#include "platform/UIString.h"

#include <gtest/gtest.h>

#include <set>

TEST(Box, ClipKeepsTheOverlapOrNothing) {
    BoxInt a(0, 0, 100, 50);
    BoxInt b = a;
    b.clip(BoxInt(60, 20, 200, 200));
    EXPECT_EQ(b, BoxInt(60, 20, 100, 50));
    BoxInt c = a;
    c.clip(BoxInt(150, 80, 160, 90));
    EXPECT_TRUE(c.isEmpty());
    EXPECT_TRUE(a.contains(0, 0));
    EXPECT_FALSE(a.contains(100, 10));
    BoxInt u;
    u.add(BoxInt(5, 5, 6, 6)).add(BoxInt(1, 2, 3, 4));
    EXPECT_EQ(u, BoxInt(1, 2, 6, 6));
}

TEST(IdStamp, UniqueAndReadableBack) {
    std::set<IdStamp> seen;
    for (int i = 0; i < 1000; ++i) EXPECT_TRUE(seen.insert(IdStamp::make()).second);
    IdStamp s = IdStamp::make();
    EXPECT_TRUE(s.valid());
    EXPECT_EQ(IdStamp(s.asString().c_str()), s);
    EXPECT_FALSE(IdStamp("not a stamp").valid());
    EXPECT_FALSE(IdStamp(static_cast<const char*>(nullptr)).valid());
    EXPECT_FALSE(IdStamp(0, 0, 0).valid());
}

TEST(UIString, LiteralTextResourceLookupAndEllipsis) {
    ResourceStrings::add(424242, L"Export");
    EXPECT_EQ(UIString(L"Render").getString(), L"Render");
    EXPECT_EQ(UIString(L"Render").resId(), UIString::kNoResource);
    EXPECT_EQ(UIString(424242).getString(), L"Export");
    EXPECT_EQ(UIString(424242, 0, UIString::kEllipsisFlag).getString(), L"Export..");
    // The id 999999 never looks anything up, even with no text.
    EXPECT_EQ(UIString(UIString::kNoResource).getString(), L"");
    EXPECT_EQ(UIString(987654).getString(), L"");
    EXPECT_TRUE(UIString().empty());
}

namespace {
struct Counter : iObject {
    int calls = 0;
    LightweightString<char> last;
    int onNotify(const NotifyMsg& m) {
        ++calls;
        last = m.name();
        return 7;
    }
};
} // namespace

TEST(WidgetCallback, CallsWithNameAndPayloadOrReportsNothingToCall) {
    Counter c;
    Zn::Ptr<iObject> payload(new Counter);
    WidgetCallback cb(Zn::Ptr<iCallbackBase<int, NotifyMsg>>(new MethodCallback<Counter, NotifyMsg, int>(&c, &Counter::onNotify)), "picked", payload);
    int result = 0;
    EXPECT_TRUE(cb.invoke(&result));
    EXPECT_EQ(result, 7);
    EXPECT_EQ(c.last, "picked");
    EXPECT_FALSE(WidgetCallback("justAMessage").invoke());
    EXPECT_TRUE(WidgetCallback().isEmpty());

    NotifyMsg m("x", payload);
    EXPECT_STREQ(static_cast<const char*>(m), "x");
    EXPECT_TRUE(m.dataAs<Counter>());
    EXPECT_FALSE(NotifyMsg("y").dataAs<Counter>());
}

TEST(Event, FreeTestsClassifyMouseEvents) {
    Event down = Event::mouse(Event::kMouseDown, {5, 5}, Event::kLeft);
    Event right = Event::mouse(Event::kMouseUp, {5, 5}, Event::kRight);
    Event chord = Event::mouse(Event::kMouseDown, {5, 5}, Event::kMiddle);
    Event wheel = Event::wheel({5, 5}, -1);
    EXPECT_TRUE(mouse_down_event(down) && mouse_left_event(down) && !mouse_right_event(down));
    EXPECT_TRUE(mouse_up_event(right) && mouse_right_event(right));
    EXPECT_TRUE(mouse_chord_event(chord));
    EXPECT_TRUE(mouse_wheel_event(wheel) && mouse_event(wheel));
    EXPECT_FALSE(mouse_event(Event::key(Event::kKeyPress, 'a')));
    EXPECT_EQ(Event::message("m", nullptr, {}).type(), 16385);

    EXPECT_TRUE(isMouseMoveSignificant(&down));
    Event jitter = Event::mouse(Event::kMouseMove, {6, 4});
    Event move = Event::mouse(Event::kMouseMove, {12, 5});
    EXPECT_FALSE(isMouseMoveSignificant(&jitter));
    EXPECT_TRUE(isMouseMoveSignificant(&move));
    EXPECT_FALSE(isMouseMoveSignificant(nullptr));
}

TEST(KeyCodes, AKeyPressCarriesItsModifiersAndEditCommandsComeFromAnyOfTheirShortcuts) {
    const Event shiftTab = Event::key(Event::kKeyPress, Keys::Tab, Modifiers::Shift);
    EXPECT_EQ(shiftTab.keyCode(), Keys::Tab | static_cast<int>(Modifiers::Shift));
    EXPECT_EQ(Event::key(Event::kKeyPress, shiftTab.keyCode()).modifiers(), Modifiers::Shift) << "modifiers may come in the code";
    EXPECT_EQ(Keys::plain(shiftTab.keyCode()), Keys::Tab);
    EXPECT_FALSE(Keys::isPrintable(Keys::Left));
    EXPECT_FALSE(Keys::isPrintable('A' | static_cast<int>(Modifiers::Control)));

    auto command = [](int key, unsigned mods) { return Keys::editCommandFor(key | static_cast<int>(mods)); };
    EXPECT_EQ(command('V', Modifiers::Control), Keys::Paste);
    EXPECT_EQ(command('v', Modifiers::Cmd), Keys::Paste);
    EXPECT_EQ(command(Keys::Insert, Modifiers::Shift), Keys::Paste);
    EXPECT_EQ(command(Keys::Insert, Modifiers::Control), Keys::Copy);
    EXPECT_EQ(command(Keys::Delete, Modifiers::Shift), Keys::Cut);
    EXPECT_EQ(command('Z', Modifiers::Control | Modifiers::Shift), Keys::Redo);
    EXPECT_EQ(command('V', Modifiers::Control | Modifiers::Alt), 'V' | static_cast<int>(Modifiers::Control | Modifiers::Alt));
    EXPECT_EQ(command('Q', Modifiers::Control), 'Q' | static_cast<int>(Modifiers::Control));
    EXPECT_EQ(command('V', 0), 'V');
}

TEST(NumbersFromOutside, NumbersThatNameNothingGiveTheDefaults) {
    EXPECT_EQ(Border(42, 2, 15).type(), Border::kNoBorder);
    EXPECT_EQ(Border(-1, 2, 15).type(), Border::kNoBorder);
    EXPECT_EQ(Border(8, 2, 15).type(), Border::kDialogueBorder);
    const Palette p;
    EXPECT_EQ(p.window(9), p.window(kShadeNormal));
    EXPECT_EQ(p.text(-1), p.text(kTextNormal));
    EXPECT_EQ(p.selection(2), p.selection(kSelectionFocused));
    EXPECT_EQ(p.childWindow(3), p.childWindow(kChildEntry));
    EXPECT_EQ(ColourData(0.1, 0.2, 0.3, 1, 1.0).getColourSpace(), kColourSpaceRGB);
    EXPECT_EQ(ColourData(0.1, 0.2, 0.3, 2, 1.0).getColourSpace(), kColourSpaceHSV);
    EXPECT_EQ(Glib::TextAlignment(5, -2), Glib::TextAlignment(Glib::kAlignDefault, Glib::kAlignMiddle));
    EXPECT_EQ(Glib::TextAlignment(2, 1), Glib::TextAlignment(Glib::kAlignCentreH, Glib::kAlignTop));
}
