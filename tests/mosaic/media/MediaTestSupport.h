#pragma once

#include "controls/DropDownMenuButton.h"
#include "controls/Menu.h"
#include "controls/StandardPanel.h"
#include "media/ShotVideoMetadata.h"
#include "testkit/TestKit.h"

#include <algorithm>
#include <string>
#include <vector>

namespace MediaTestSupport {

// A realized panel that hosts the widgets under test and records the messages it hears.
class Host : public StandardPanel {
public:
    Host() : StandardPanel(InitArgs(600, 300)) { TestKit::realize(this, {100, 500}); }
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override {
        messages.push_back(message.str());
        senders.push_back(sender);
        return 1;
    }
    int count(const std::string& message) const { return static_cast<int>(std::count(messages.begin(), messages.end(), message)); }
    template <class T>
    T* add(typename T::InitArgs args) {
        T* t = createWidget<T>(args, Glob::UserBottomLeft(20, 20));
        TestKit::pump();
        return t;
    }
    std::vector<std::string> messages;
    std::vector<Glob*> senders;
};

class MediaTest : public TestKit::ScreenTest {
protected:
    void SetUp() override { host = new Host; }
    Host* host = nullptr;
};

// A format of the table by its UID, in its own scan and rate.
inline ShotVideoMetadata tableFormat(std::uint32_t uid) {
    const auto info = Zn::DigitalVideoFormats::findByUID(Zn::Image::FormatUID(uid));
    return ShotVideoMetadata(info, Zn::Image::Format("YUY2"), Zn::kFrameRateNone, Zn::Image::kAspectUnknown, true, info.scanMode, 8);
}

// Opens the drop-down with a click and clicks the menu's row `row` (headings count).
inline void chooseRow(DropDownMenuButton* b, int row) {
    TestKit::click(TestKit::centreOf(b));
    Menu* m = b->getMenu();
    ASSERT_NE(m, nullptr);
    const BoxInt box = m->rowBox(row);
    TestKit::click(TestKit::screenPointOf(m, {(box.x1 + box.x2) / 2, (box.y1 + box.y2) / 2}));
    TestKit::pump();
}

inline std::vector<std::wstring> rowTexts(const DropDownMenuButton* b) {
    std::vector<std::wstring> texts;
    for (const MenuItem& item : b->getItems()) texts.push_back(item.text().getString().str());
    return texts;
}

} // namespace MediaTestSupport
