#include "FileFilter.h"

#include "platform/OS.h"

#include <algorithm>
#include <cwctype>

namespace {

LightweightString<wchar_t> trimmed(const LightweightString<wchar_t>& s) {
    std::size_t a = 0, b = s.size();
    while (a < b && std::iswspace(static_cast<wint_t>(s[a]))) ++a;
    while (b > a && std::iswspace(static_cast<wint_t>(s[b - 1]))) --b;
    return s.substr(a, b - a);
}

bool hasWildcard(const LightweightString<wchar_t>& s) { return s.find_first_of(L"*?") != LightweightString<wchar_t>::npos; }

} // namespace

FileFilter::FileFilter(const std::vector<LightweightString<wchar_t>>& entries) {
    for (const LightweightString<wchar_t>& entry : entries) {
        std::size_t start = 0;
        while (start <= entry.size()) {
            std::size_t end = entry.find_first_of(L";,", start);
            if (end == LightweightString<wchar_t>::npos) end = entry.size();
            add(entry.substr(start, end - start));
            start = end + 1;
        }
    }
    if (all_) patterns_.clear();
}

void FileFilter::add(LightweightString<wchar_t> entry) {
    entry = folded(trimmed(entry));
    if (entry.empty() || entry.find(L'/') != LightweightString<wchar_t>::npos) return;
    // "*.*" is what people write for every file, names without a dot included.
    if (entry == L"*" || entry == L"*.*") {
        all_ = true;
        return;
    }
    if (!hasWildcard(entry)) entry = (entry[0] == L'.' ? LightweightString<wchar_t>(L"*") : LightweightString<wchar_t>(L"*.")) + entry;
    if (std::find(patterns_.begin(), patterns_.end(), entry) == patterns_.end()) patterns_.push_back(entry);
}

bool FileFilter::matches(const LightweightString<wchar_t>& name) const {
    if (acceptsAll()) return true;
    const LightweightString<wchar_t> n = folded(name);
    return std::any_of(patterns_.begin(), patterns_.end(), [&](const auto& p) { return matchesPattern(n, p); });
}

LightweightString<wchar_t> FileFilter::describe() const {
    if (acceptsAll()) return L"*";
    LightweightString<wchar_t> text;
    for (const LightweightString<wchar_t>& p : patterns_) {
        if (!text.empty()) text += L"; ";
        text += p;
    }
    return text;
}

LightweightString<wchar_t> FileFilter::folded(const LightweightString<wchar_t>& text) {
    std::wstring s = text.str();
    for (wchar_t& c : s) c = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(c)));
    return s;
}
