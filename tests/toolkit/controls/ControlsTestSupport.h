#pragma once

#include "core/FunctionCallback.h"
#include "core/NotifyMsg.h"
#include "glob/GlobManager.h"
#include "glob/StandardPanel.h"
#include "testing/TestKit.h"

#include <functional>
#include <string>
#include <vector>

// A realized top-level panel that hosts controls under test and records the
// messages they send it.
class ControlHost : public StandardPanel {
public:
    ControlHost(int w, int h) : StandardPanel(InitArgs(static_cast<unsigned short>(w), static_cast<unsigned short>(h))) {
        setupRootPos({100, 100});
        GlobManager::instance().realize(this);
    }
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override {
        messages.push_back(message.str());
        senders.push_back(sender);
        return 1;
    }
    std::vector<std::string> messages;
    std::vector<Glob*> senders;
};

class ControlsTest : public ::testing::Test {
protected:
    void SetUp() override { host = new ControlHost(400, 200); }
    void TearDown() override { TestKit::reset(); }

    template <class T>
    T* add(typename T::InitArgs args, XY<int> at = {20, 20}) {
        T* t = host->createWidget<T>(args, Glob::UserBottomLeft(at.x, at.y));
        TestKit::pump();
        return t;
    }

    // True when no colour channel of the two differs by more than `tolerance`; unlike
    // TestKit::pixelNear it writes nothing on a mismatch, for loops that expect many.
    static bool similar(std::uint32_t a, std::uint32_t b, int tolerance) {
        for (int s = 0; s < 24; s += 8)
            if (std::abs(int((a >> s) & 255) - int((b >> s) & 255)) > tolerance) return false;
        return true;
    }
    // How many pixels of `g` inside `box` differ from `background` by more than `tolerance`.
    static int inkPixels(const Glob* g, const BoxInt& box, std::uint32_t background, int tolerance = 40) {
        int n = 0;
        for (int y = box.y1; y < box.y2; ++y)
            for (int x = box.x1; x < box.x2; ++x)
                if (!similar(TestKit::globPixel(g, x, y), background, tolerance)) ++n;
        return n;
    }

    ControlHost* host = nullptr;
};

// A callback that counts its calls and keeps the last message.
inline Zn::Ptr<iCallbackBase<int, NotifyMsg>> countingCallback(int& calls, std::string* last = nullptr) {
    return Zn::Ptr<iCallbackBase<int, NotifyMsg>>(new FunctionCallback<NotifyMsg, int>(std::function<int(const NotifyMsg&)>([&calls, last](const NotifyMsg& m) {
        ++calls;
        if (last) *last = m.name().str();
        return 1;
    })));
}
