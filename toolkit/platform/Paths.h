#pragma once

#include "core/LightweightString.h"

// Path helpers on '/'-separated paths.
bool fileExists(const LightweightString<wchar_t>& path);
// The folder part with its trailing separator ("/a/b/c.txt" gives "/a/b/"); empty when there is none.
LightweightString<wchar_t> getPath(const LightweightString<wchar_t>& path);
// The name without its folder ("/a/b/c.txt" gives "c.txt").
LightweightString<wchar_t> stripPath(const LightweightString<wchar_t>& path);
// The path without the extension of its name ("/a.b/c.txt" gives "/a.b/c").
LightweightString<wchar_t> stripExtension(const LightweightString<wchar_t>& path);
// The extension of the name with its dot (".txt"); empty when the name has none.
LightweightString<wchar_t> getExtension(const LightweightString<wchar_t>& path);
// Joins with one separator between; an empty part gives the other.
LightweightString<wchar_t> joinPaths(const LightweightString<wchar_t>& a, const LightweightString<wchar_t>& b);
