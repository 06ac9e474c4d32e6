#pragma once

#include "LightweightString.h"

// UTF-8 narrow text to wide text. Bytes that are not valid UTF-8 become U+FFFD,
// one per bad byte, so no input is lost silently or read past its end.
LightweightString<wchar_t> fromUTF8(const LightweightString<char>& text);
LightweightString<wchar_t> fromUTF8(const char* text);
// Wide text to UTF-8. Values that are not Unicode scalar values become U+FFFD.
LightweightString<char> toUTF8(const LightweightString<wchar_t>& text);
LightweightString<char> toUTF8(const wchar_t* text);
