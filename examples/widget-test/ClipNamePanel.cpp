#include "ClipNamePanel.h"

#include "controls/PushButton.h"
#include "controls/TextBox.h"
#include "draw/UifStd.h"

namespace {

const char* kRename = "rename";

bool blank(const LightweightString<wchar_t>& text) {
    for (wchar_t c : text.str())
        if (c != L' ') return false;
    return true;
}

} // namespace

ClipNamePanel::ClipNamePanel(const LightweightString<wchar_t>& clipName) : StandardPanel(InitArgs(300, 80)), clipName_(clipName) {
    setTitle(UIString(L"Rename clip"));
    const int row = UifStd::instance().getRowHeight(), gap = UifStd::instance().getWidgetGap();
    TextBox::InitArgs box(UIString(clipName), 180, static_cast<unsigned short>(row));
    box_ = createWidget<TextBox>(box, UserBottomLeft(gap, gap));
    box_->setName("name");
    PushButton::InitArgs button(UIString(L"Rename"), WidgetCallback(kRename), 90, static_cast<unsigned short>(row));
    createWidget<PushButton>(button, UserBottomLeft(2 * gap + 180, gap))->setName(kRename);
}

int ClipNamePanel::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if (message != kRename) return StandardPanel::handleMessageEvent(message, sender);
    if (blank(box_->getString()))
        box_->setString(UIString(clipName_));
    else
        clipName_ = box_->getString();
    return 1;
}
