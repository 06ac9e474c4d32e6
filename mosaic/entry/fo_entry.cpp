#include "fo_entry.h"

#include "controls/TitleTextBox.h"
#include "core/MethodCallback.h"
#include "draw/FontDesc.h"

namespace {
constexpr unsigned short kTitleWidth = 150;

// Leaving the box validates it, as moving the form's focus away would.
class ValidateOnLeaving : public iCallbackBase<int, NotifyMsg> {
public:
    explicit ValidateOnLeaving(fo_entry* e) : entry_(e) {}
    int execute(const NotifyMsg&) override { return entry_ ? entry_->m_validate_state() : 0; }

private:
    GlobHandle<fo_entry> entry_;
};
} // namespace

fo_entry::fo_entry(unsigned short width, unsigned short height, int id, const LightweightString<wchar_t>& label, int length, double ratio)
    : fo_eleme(width, height, kFormEntry, id, label, ratio, nullptr), length_(length) {
    const auto entryWidth = static_cast<unsigned short>(std::max(1, static_cast<int>(width) - kTitleWidth));
    TitleTextBox::InitArgs args(m_label, entryWidth, width, height);
    box_ = createWidget<TitleTextBox>(args, BottomLeft(0, 0));
    box_->setName("entry");
    box_->setTitleWidth(kTitleWidth);
    box_->getTextBox()->setFont(Glib::FontDesc());
    m_reset_entry();
    box_->requestCallback(kReturnMsg, this, TextBoxBase::kReturnPressed);
    box_->requestCallback(WidgetCallback(Zn::Ptr<iCallbackBase<int, NotifyMsg>>(new ValidateOnLeaving(this))), TextBoxBase::kFocusLost);
}

void fo_entry::m_reset_entry() { box_->setString(m_entry); }

int fo_entry::m_collect_entry() {
    m_entry = box_->getString();
    return 0;
}

int fo_entry::m_validate_entry(LightweightString<wchar_t>) { return 0; }

LightweightString<wchar_t> fo_entry::m_get_entry() {
    m_collect_entry();
    return m_entry;
}

void fo_entry::m_set_entry(const LightweightString<wchar_t>& text) {
    m_entry = text;
    m_reset_entry();
}

std::vector<TabOrderable*> fo_entry::getTabStops() { return box_->getTabStops(); }

int fo_entry::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if (message == kReturnMsg) {
        if (!m_has_focus) m_request_focus();
        m_unread = false;
        sendUp(msgFromUIText(m_get_entry()));
        return 1;
    }
    return fo_eleme::handleMessageEvent(message, sender);
}
