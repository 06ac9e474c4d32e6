#pragma once

#include "controls/StandardPanel.h"
#include "core/FunctionCallback.h"
#include "core/NotifyMsg.h"
#include "glob/GlobManager.h"
#include "testing/TestKit.h"

#include <functional>
#include <string>
#include <vector>

using TestKit::inkPixels;
using TestKit::similar;

// A realized top-level panel that hosts controls under test and records the
// messages they send it.
class ControlHost : public StandardPanel {
public:
    ControlHost(int w, int h) : StandardPanel(InitArgs(static_cast<unsigned short>(w), static_cast<unsigned short>(h))) { TestKit::realize(this); }
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override {
        messages.push_back(message.str());
        senders.push_back(sender);
        return 1;
    }
    std::vector<std::string> messages;
    std::vector<Glob*> senders;
};

class ControlsTest : public TestKit::ScreenTest {
protected:
    void SetUp() override { host = new ControlHost(400, 200); }

    template <class T>
    T* add(typename T::InitArgs args, XY<int> at = {20, 20}) {
        T* t = host->createWidget<T>(args, Glob::UserBottomLeft(at.x, at.y));
        TestKit::pump();
        return t;
    }

    ControlHost* host = nullptr;
};

// A callback that counts its calls and keeps the last message.
inline Zn::Ptr<iCallbackBase<int, NotifyMsg>> countingCallback(int& calls, std::string* last = nullptr) {
    return Zn::Ptr<iCallbackBase<int, NotifyMsg>>(
        new FunctionCallback<NotifyMsg, int>(std::function<int(const NotifyMsg&)>([&calls, last](const NotifyMsg& m) {
            ++calls;
            if (last) *last = m.name().str();
            return 1;
        })));
}
