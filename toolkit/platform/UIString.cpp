#include "UIString.h"

#include "ResourceStrings.h"

LightweightString<wchar_t> UIString::getString() const {
    LightweightString<wchar_t> s = text_;
    if (s.empty() && id_ != 0 && id_ != kNoResource) s = resourceStrW(id_, format_);
    if (flags_ & kEllipsisFlag) s += L"..";
    return s;
}
