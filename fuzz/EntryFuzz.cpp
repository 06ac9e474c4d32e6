// Feeds arbitrary text to the entry widgets' readers: the address parser, a paste
// into the address box, and the validation of a form's number and text entries.
// Whatever comes in, a parsed address writes back to itself, the boxes keep their
// digits within their limits, and numbers stay in their ranges.
#include "controls/TitleTextBox.h"
#include "core/KeyCodes.h"
#include "core/Utf8.h"
#include "core/WStringFromInteger.h"
#include "entry/CustomTextBox.h"
#include "entry/IPAddressEntryBox.h"
#include "entry/fo_entry.h"
#include "entry/fo_v_dbl.h"
#include "entry/fo_v_int.h"
#include "entry/form.h"
#include "glob/GlobManager.h"
#include "glob/Messaging.h"
#include "platform/OS.h"

#include <cstddef>
#include <cstdint>

namespace {

LightweightString<wchar_t> written(const IPAddress& a) {
    LightweightString<wchar_t> s;
    for (unsigned char i = 0; i < 4; ++i) {
        if (i) s += L'.';
        s += Zn::WStringFromInteger(a.getPart(i));
    }
    s += L':';
    s += Zn::WStringFromInteger(a.port);
    return s;
}

struct Widgets {
    Widgets() {
        f = new form(400, 300, nullptr, 0, Palette(), {}, 0.0);
        f->setupRootPos({0, 0});
        GlobManager::instance().realize(f);
        whole = new fo_v_int(300, 24, 0, L"N", -5, 300, 0.5);
        real = new fo_v_dbl(300, 24, 1, L"R", -1.5, 99.25, 3, 0.5);
        text = new fo_entry(300, 24, 2, L"T", 0, 0.5);
        f->m_add_element(whole);
        f->m_add_element(real);
        f->m_add_element(text);
        IPAddressEntryBox::InitArgs args({}, true, 24);
        address = f->createWidget<IPAddressEntryBox>(args, Glob::BottomLeft(0, 0));
    }
    form* f;
    fo_v_int* whole;
    fo_v_dbl* real;
    fo_entry* text;
    IPAddressEntryBox* address;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Widgets w;
    const LightweightString<wchar_t> text = fromUTF8(LightweightString<char>(reinterpret_cast<const char*>(data), size));

    IPAddress a;
    if (a.fromString(text)) {
        IPAddress again;
        if (!again.fromString(written(a)) || again.octets != a.octets || again.port != a.port) __builtin_trap();
    }

    OS()->setClipboardText(text);
    CustomTextBox* box = w.address->entryBox(size % 5);
    box->claimKbdFocus();
    box->handleKeyboardEvent(Keys::Paste);
    for (std::size_t i = 0; i < 5; ++i) {
        const LightweightString<wchar_t>& s = w.address->entryBox(i)->getString();
        if (s.size() > (i == 4 ? 5u : 3u) || s.view().find_first_not_of(L"0123456789") != std::wstring_view::npos) __builtin_trap();
    }

    w.whole->m_set_entry(text);
    const int n = w.whole->m_get_value();
    if (n < w.whole->minimum() || n > w.whole->maximum()) __builtin_trap();
    w.real->textBox()->setString(text);
    const double r = w.real->m_get_value();
    if (!(r >= w.real->minimum() && r <= w.real->maximum())) __builtin_trap();
    w.text->textBox()->setString(text);
    callMessage(fo_entry::kReturnMsg, w.text, w.text);
    GlobManager::instance().runUntilIdle();
    return 0;
}
