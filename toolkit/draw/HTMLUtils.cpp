#include "HTMLUtils.h"

#include <algorithm>
#include <cstdint>
#include <string>

namespace {

std::size_t position(int p, std::size_t size, std::size_t whenUnset) {
    if (p < 0) return whenUnset;
    return std::min(static_cast<std::size_t>(p), size);
}

void appendHexByte(std::wstring& out, std::uint32_t byte) {
    static const wchar_t digits[] = L"0123456789abcdef";
    out += digits[(byte >> 4) & 0xF];
    out += digits[byte & 0xF];
}

} // namespace

LightweightString<wchar_t> HTMLUtils::addTags(const LightweightString<wchar_t>& text, std::wstring_view open, std::wstring_view close, int start,
                                              int end) {
    std::size_t from = position(start, text.size(), 0);
    std::size_t to = position(end, text.size(), text.size());
    if (to < from) return text;
    std::wstring_view v = text.view();
    std::wstring out;
    out.reserve(text.size() + open.size() + close.size());
    out.append(v.substr(0, from)).append(open).append(v.substr(from, to - from)).append(close).append(v.substr(to));
    return LightweightString<wchar_t>(out);
}

LightweightString<wchar_t> HTMLUtils::addParagraphTags(const LightweightString<wchar_t>& text, int start, int end) {
    return addTags(text, L"<p>", L"</p>", start, end);
}

LightweightString<wchar_t> HTMLUtils::addColourTags(const LightweightString<wchar_t>& text, double red, double green, double blue, double alpha,
                                                    int start, int end) {
    return addColourTags(text, Colour(red, green, blue, alpha), start, end);
}

LightweightString<wchar_t> HTMLUtils::addColourTags(const LightweightString<wchar_t>& text, const Colour& colour, int start, int end) {
    std::wstring open = L"<font color=\"" + colourCode(colour).str() + L"\">";
    return addTags(text, open, L"</font>", start, end);
}

LightweightString<wchar_t> HTMLUtils::addStyleTags(const LightweightString<wchar_t>& text, int style, int start, int end) {
    std::wstring open, close;
    if (style & kBold) {
        open += L"<b>";
        close = L"</b>" + close;
    }
    if (style & kItalic) {
        open += L"<i>";
        close = L"</i>" + close;
    }
    if (style & kUnderline) {
        open += L"<u>";
        close = L"</u>" + close;
    }
    if (open.empty()) return text;
    return addTags(text, open, close, start, end);
}

LightweightString<wchar_t> HTMLUtils::colourCode(const Colour& colour) {
    std::uint32_t argb = asARGB(colour);
    std::wstring code = L"#";
    for (int shift : {16, 8, 0}) appendHexByte(code, argb >> shift);
    if ((argb >> 24) != 0xFF) appendHexByte(code, argb >> 24);
    return LightweightString<wchar_t>(code);
}

LightweightString<wchar_t> HTMLUtils::escape(const LightweightString<wchar_t>& text) {
    if (text.find_first_of(L"&<>\"") == LightweightString<wchar_t>::npos) return text;
    std::wstring out;
    out.reserve(text.size() + 16);
    for (wchar_t c : text) {
        switch (c) {
        case L'&': out += L"&amp;"; break;
        case L'<': out += L"&lt;"; break;
        case L'>': out += L"&gt;"; break;
        case L'"': out += L"&quot;"; break;
        default: out += c;
        }
    }
    return LightweightString<wchar_t>(out);
}
