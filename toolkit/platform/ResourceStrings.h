#pragma once

#include "UIString.h"

// Resource strings: a table of ids to texts per language, English filling the
// gaps of any other. Format 0 gives the text as it is, 1 with a leading capital.
// An unknown id gives the empty string.
LightweightString<wchar_t> resourceStrW(ResId id);
LightweightString<wchar_t> resourceStrW(ResId id, ResStrFmt format);
// The text with ".." appended.
LightweightString<wchar_t> ellipsisResourceStrW(ResId id, ResStrFmt format = 0);
// The text between a prefix and a suffix (either may be null).
LightweightString<wchar_t> paddedResourceStrW(ResId id, const wchar_t* prefix, const wchar_t* suffix, ResStrFmt format = 0);

namespace ResourceStrings {
// Adds or replaces texts of the current table; used at load by code that ships its own strings.
void add(ResId id, const LightweightString<wchar_t>& text);
// Loads a JSON object of id to text for a language ("en", "de", ...), replacing that
// language's table. Returns false, keeping the old table, when the file is unreadable.
bool loadFile(const LightweightString<char>& language, const LightweightString<char>& path);
// Chooses the language whose texts are used; English texts fill any gaps.
void setLanguage(const LightweightString<char>& language);
LightweightString<char> language();
} // namespace ResourceStrings
