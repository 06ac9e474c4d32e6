#include "MenuItem.h"

namespace {
constexpr std::wstring_view kColumnMark = L"||";
constexpr auto kNoMark = LightweightString<wchar_t>::npos;
} // namespace

MenuItem::MenuItem(const UIString& text, const WidgetCallback& callback, MenuItemType type) : text_(text), callback_(callback), type_(type) {}

MenuItem::MenuItem(const UIString& text, const WidgetCallback& callback, const Colour& textColour, MenuItemType type)
    : text_(text), callback_(callback), type_(type), textColour_(textColour) {}

MenuItem::MenuItem(const UIString& text, const WidgetCallback& callback, const Colour& textColour, const Colour& background, MenuItemType type)
    : text_(text), callback_(callback), type_(type), textColour_(textColour), background_(background) {}

bool MenuItem::isGap() const { return text_.empty() && second_.empty(); }

LightweightString<wchar_t> MenuItem::label() const {
    LightweightString<wchar_t> s = text_.getString();
    auto mark = s.find(kColumnMark);
    return mark == kNoMark ? s : s.substr(0, mark);
}

LightweightString<wchar_t> MenuItem::sideText() const {
    if (!second_.empty()) return second_.getString();
    LightweightString<wchar_t> s = text_.getString();
    auto mark = s.find(kColumnMark);
    return mark == kNoMark ? LightweightString<wchar_t>() : s.substr(mark + kColumnMark.size());
}

LightweightString<wchar_t> MenuItem::displayText() const {
    LightweightString<wchar_t> s = text_.getString();
    auto mark = s.find(kColumnMark);
    if (mark == kNoMark) return s;
    return s.substr(0, mark) + L" " + s.substr(mark + kColumnMark.size());
}
