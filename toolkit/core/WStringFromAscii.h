#pragma once

#include "LightweightString.h"

namespace Zn {

// Narrow text from printf-style formatting to wide text. Text that is valid
// UTF-8 is decoded; anything else is taken byte by byte as Latin-1, so that a
// message built from older 8-bit strings still reads and nothing is dropped.
// A null pointer gives the empty string.
LightweightString<wchar_t> WStringFromAscii(const char* text);
LightweightString<wchar_t> WStringFromAscii(const char* text, std::size_t length);
LightweightString<wchar_t> WStringFromAscii(const LightweightString<char>& text);

} // namespace Zn
