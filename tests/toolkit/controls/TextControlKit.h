#pragma once

#include "controls/StandardPanel.h"
#include "core/FunctionCallback.h"
#include "core/WidgetCallback.h"
#include "draw/TextLayout.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "glob/Messaging.h"
#include "platform/OS.h"
#include "testing/TestKit.h"

#include <cstdint>
#include <cstdlib>
#include <vector>

// What the tests of the text controls share: a realized panel to put a control in,
// a panel that records the messages it hears, and counts of painted pixels.
namespace TextControlKit {

class RecordingPanel : public StandardPanel {
public:
    using StandardPanel::StandardPanel;
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override {
        heard.push_back(message);
        senders.push_back(sender);
        return consume ? 1 : 0;
    }
    std::vector<LightweightString<char>> heard;
    std::vector<Glob*> senders;
    bool consume = true;
};

inline RecordingPanel* makePanel(int w = 400, int h = 200, XY<int> at = {100, 100}) {
    StandardPanel::InitArgs args(static_cast<unsigned short>(w), static_cast<unsigned short>(h));
    args.palette = UifStd::instance().getColourScheme();
    return TestKit::realize(new RecordingPanel(args), at);
}

// A fixture with a panel for the control under test, which leaves the screen and
// the clipboard empty for the next test.
class TextControlTest : public TestKit::ScreenTest {
protected:
    void TearDown() override {
        TestKit::reset();
        OS()->setClipboardText({});
    }
    RecordingPanel* panel = nullptr;
};

// How many pixels of `box` (glob coordinates) are within `tolerance` of `colour`.
inline int countPixels(const Glob* g, const BoxInt& box, const Colour& colour, int tolerance = 0) {
    TestKit::pump();
    return TestKit::countPixels(g, box, colour, tolerance);
}

// How many pixels of `box` differ from `background` by more than `tolerance`: ink.
inline int inkPixels(const Glob* g, const BoxInt& box, const Colour& background, int tolerance = 40) {
    TestKit::pump();
    return TestKit::inkPixels(g, box, TestKit::argb(background), tolerance);
}

// True when two globs of one size show the same pixels.
inline bool samePixels(const Glob* a, const Glob* b) {
    TestKit::pump();
    if (a->size() != b->size()) return false;
    for (int y = 0; y < a->height(); ++y)
        for (int x = 0; x < a->width(); ++x)
            if (TestKit::globPixel(a, x, y) != TestKit::globPixel(b, x, y)) return false;
    return true;
}

// Types a text one character at a time, as a keyboard does.
inline void typeEach(const wchar_t* text) {
    for (const wchar_t* c = text; *c; ++c) TestKit::typeText(LightweightString<wchar_t>(1, *c));
}

// A callback that counts its calls in `n`, which must outlive it.
inline WidgetCallback countingCallback(int& n) {
    return WidgetCallback(Zn::Ptr<iCallbackBase<int, NotifyMsg>>(
        new FunctionCallback<NotifyMsg, int>(std::function<int(const NotifyMsg&)>([&n](const NotifyMsg&) { return ++n; }))));
}

} // namespace TextControlKit
