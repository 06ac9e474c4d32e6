#include "FilespecUtils.h"

#include "Paths.h"

#include <algorithm>
#include <array>
#include <cwctype>
#include <string>

namespace Zn {

namespace {

// Extensions are short; a hostile one must not eat the whole name.
constexpr std::size_t kMaxExtensionChars = 32;
// Room kept for the "_NNNN" that makes a taken name unique.
constexpr std::size_t kUniqueSuffixBytes = 6;
constexpr int kMaxUniqueTries = 9999;

bool isForbidden(wchar_t c, bool ntfs) {
    if (c == L'/' || c < 0x20 || c == 0x7F) return true;
    if (!ntfs) return false;
    return std::wstring_view(L"<>:\"\\|?*").find(c) != std::wstring_view::npos;
}

wchar_t safeReplacement(char replacement, bool ntfs) {
    wchar_t r = static_cast<wchar_t>(static_cast<unsigned char>(replacement));
    return (r >= 0x80 || r == L'.' || r == L' ' || isForbidden(r, ntfs)) ? L'_' : r;
}

std::size_t utf8Bytes(wchar_t c) {
    auto u = static_cast<char32_t>(c);
    return u < 0x80 ? 1 : u < 0x800 ? 2 : u < 0x10000 ? 3 : 4;
}

std::size_t utf8Bytes(std::wstring_view s) {
    std::size_t n = 0;
    for (wchar_t c : s) n += utf8Bytes(c);
    return n;
}

// Cuts whole characters off the end until the text fits in `bytes`.
void truncateToBytes(std::wstring& s, std::size_t bytes) {
    std::size_t used = 0, keep = 0;
    while (keep < s.size() && used + utf8Bytes(s[keep]) <= bytes) used += utf8Bytes(s[keep++]);
    s.resize(keep);
}

std::wstring cleanCharacters(std::wstring_view s, wchar_t replacement, bool ntfs) {
    std::wstring out(s);
    for (wchar_t& c : out)
        if (isForbidden(c, ntfs)) c = replacement;
    // A leading dot would hide the file, and "." or ".." would name a folder.
    for (std::size_t i = 0; i < out.size() && out[i] == L'.'; ++i) out[i] = replacement;
    return out;
}

// Windows drops trailing dots and spaces silently, so two names would meet.
void replaceTrailingDotsAndSpaces(std::wstring& s, wchar_t replacement) {
    for (std::size_t i = s.size(); i > 0 && (s[i - 1] == L'.' || s[i - 1] == L' '); --i) s[i - 1] = replacement;
}

bool isDeviceName(std::wstring_view stem) {
    std::wstring upper;
    for (wchar_t c : stem) upper += static_cast<wchar_t>(std::towupper(static_cast<wint_t>(c)));
    static const std::array<std::wstring_view, 4> plain = {L"CON", L"PRN", L"AUX", L"NUL"};
    if (std::find(plain.begin(), plain.end(), upper) != plain.end()) return true;
    bool numbered = upper.size() == 4 && (upper.starts_with(L"COM") || upper.starts_with(L"LPT"));
    return numbered && upper[3] >= L'1' && upper[3] <= L'9';
}

std::wstring cleanExtension(const LightweightString<wchar_t>& extension, wchar_t replacement, bool ntfs) {
    std::wstring_view v = extension.view();
    while (!v.empty() && v.front() == L'.') v.remove_prefix(1);
    std::wstring ext = cleanCharacters(v.substr(0, kMaxExtensionChars), replacement, ntfs);
    if (ntfs) replaceTrailingDotsAndSpaces(ext, replacement);
    return ext.empty() ? ext : L"." + ext;
}

std::wstring cleanStem(const LightweightString<wchar_t>& name, const std::wstring& ext, wchar_t replacement, bool ntfs) {
    std::wstring stem = cleanCharacters(name.view(), replacement, ntfs);
    truncateToBytes(stem, FilespecUtils::kMaxNameBytes - kUniqueSuffixBytes - utf8Bytes(ext));
    if (stem.empty()) stem.assign(1, replacement);
    if (ntfs && ext.empty()) replaceTrailingDotsAndSpaces(stem, replacement);
    if (ntfs && isDeviceName(stem)) stem.insert(stem.begin(), replacement);
    return stem;
}

LightweightString<wchar_t> makeFilespec(const LightweightString<wchar_t>& folder, const LightweightString<wchar_t>& name,
                                        const LightweightString<wchar_t>& extension, bool overwrite, char replacement, bool ntfs) {
    wchar_t r = safeReplacement(replacement, ntfs);
    std::wstring ext = cleanExtension(extension, r, ntfs);
    std::wstring stem = cleanStem(name, ext, r, ntfs);
    std::wstring dir = folder.str();
    std::replace(dir.begin(), dir.end(), L'\0', r);
    LightweightString<wchar_t> path = joinPaths(LightweightString<wchar_t>(dir), LightweightString<wchar_t>(stem + ext));
    if (overwrite || !fileExists(path)) return path;
    for (int n = 2; n <= kMaxUniqueTries; ++n) {
        std::wstring numbered = stem + r + std::to_wstring(n) + ext;
        LightweightString<wchar_t> candidate = joinPaths(LightweightString<wchar_t>(dir), LightweightString<wchar_t>(numbered));
        if (!fileExists(candidate)) return candidate;
    }
    // Every numbered name is taken: overwriting the first beats writing nowhere.
    return path;
}

} // namespace

LightweightString<wchar_t> FilespecUtils::makeValidFilespec(const LightweightString<wchar_t>& folder, const LightweightString<wchar_t>& name,
                                                            const LightweightString<wchar_t>& extension, bool overwrite, char replacement) {
    return makeFilespec(folder, name, extension, overwrite, replacement, false);
}

LightweightString<wchar_t> FilespecUtils::makeValidFilespecNTFS(const LightweightString<wchar_t>& folder, const LightweightString<wchar_t>& name,
                                                                const LightweightString<wchar_t>& extension, bool overwrite, char replacement) {
    return makeFilespec(folder, name, extension, overwrite, replacement, true);
}

LightweightString<wchar_t> FilespecUtils::makeValidFilename(const LightweightString<wchar_t>& name, const LightweightString<wchar_t>& extension,
                                                            char replacement, bool ntfs) {
    wchar_t r = safeReplacement(replacement, ntfs);
    std::wstring ext = cleanExtension(extension, r, ntfs);
    return LightweightString<wchar_t>(cleanStem(name, ext, r, ntfs) + ext);
}

} // namespace Zn
