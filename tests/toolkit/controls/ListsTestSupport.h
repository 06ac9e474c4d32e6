#pragma once

#include "controls/StandardPanel.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "testing/TestKit.h"

#include <string>
#include <vector>

// A top-level panel that records the messages its children send it.
class MessageLog : public StandardPanel {
public:
    explicit MessageLog(const InitArgs& a) : StandardPanel(a) {}
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override {
        messages.push_back(message.str());
        senders.push_back(sender);
        return 1;
    }
    int count(const char* name) const {
        int n = 0;
        for (const std::string& m : messages) n += m == name;
        return n;
    }
    void clear() {
        messages.clear();
        senders.clear();
    }

    std::vector<std::string> messages;
    std::vector<Glob*> senders;
};

// A realized host of a plain colour with no border, bottom left at `at` on the screen.
inline MessageLog* makeHost(int w, int h, XY<int> at = {100, 100}) {
    StandardPanel::InitArgs args(static_cast<unsigned short>(w), static_cast<unsigned short>(h));
    args.palette = UifStd::instance().getColourScheme();
    auto* p = TestKit::realize(new MessageLog(args), at);
    TestKit::pump();
    return p;
}

// Makes a child of `host` the usual way and paints the host.
template <class T>
T* addTo(StandardPanel* host, typename T::InitArgs& args, const WidgetPosition& where) {
    T* child = host->createWidget<T>(args, where);
    host->redraw();
    TestKit::pump();
    return child;
}

inline std::vector<LightweightString<wchar_t>> numberedRows(int n, const wchar_t* prefix = L"Row ") {
    std::vector<LightweightString<wchar_t>> rows;
    for (int i = 0; i < n; ++i) rows.emplace_back(std::wstring(prefix) + std::to_wstring(i));
    return rows;
}
