#include "Paths.h"

#include "core/Utf8.h"

#include <sys/stat.h>

namespace {
std::size_t nameStart(const LightweightString<wchar_t>& p) {
    std::size_t slash = p.rfind(L'/');
    return slash == LightweightString<wchar_t>::npos ? 0 : slash + 1;
}
std::size_t extensionStart(const LightweightString<wchar_t>& p) {
    std::size_t dot = p.rfind(L'.');
    std::size_t name = nameStart(p);
    // A leading dot names a hidden file rather than starting an extension.
    return (dot == LightweightString<wchar_t>::npos || dot <= name) ? p.size() : dot;
}
} // namespace

bool fileExists(const LightweightString<wchar_t>& path) {
    struct stat st;
    return !path.empty() && ::stat(toUTF8(path).c_str(), &st) == 0;
}

LightweightString<wchar_t> getPath(const LightweightString<wchar_t>& path) { return path.substr(0, nameStart(path)); }
LightweightString<wchar_t> stripPath(const LightweightString<wchar_t>& path) { return path.substr(nameStart(path)); }
LightweightString<wchar_t> stripExtension(const LightweightString<wchar_t>& path) { return path.substr(0, extensionStart(path)); }
LightweightString<wchar_t> getExtension(const LightweightString<wchar_t>& path) { return path.substr(extensionStart(path)); }

LightweightString<wchar_t> joinPaths(const LightweightString<wchar_t>& a, const LightweightString<wchar_t>& b) {
    if (a.empty()) return b;
    if (b.empty()) return a;
    bool aSlash = a.back() == L'/', bSlash = b.front() == L'/';
    if (aSlash && bSlash) return a + b.substr(1);
    if (aSlash || bSlash) return a + b;
    return a + L"/" + b;
}
