#include "HTMLParser.h"

#include "core/Utf8.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

using Run = HTMLRenderer::Run;
using Paragraph = HTMLRenderer::Paragraph;
constexpr std::size_t npos = std::wstring_view::npos;

bool isSpace(wchar_t c) { return c == L' ' || c == L'\t' || c == L'\n' || c == L'\r' || c == L'\f'; }
bool isAsciiAlpha(wchar_t c) { return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z'); }
bool isAsciiDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }
bool isNameChar(wchar_t c) { return isAsciiAlpha(c) || isAsciiDigit(c) || c == L'-' || c == L'_' || c == L':' || c == L'.'; }

std::wstring lower(std::wstring_view s) {
    std::wstring r(s);
    for (wchar_t& c : r)
        if (c >= L'A' && c <= L'Z') c = static_cast<wchar_t>(c - L'A' + L'a');
    return r;
}

std::wstring_view trim(std::wstring_view s) {
    while (!s.empty() && isSpace(s.front())) s.remove_prefix(1);
    while (!s.empty() && isSpace(s.back())) s.remove_suffix(1);
    return s;
}

int hexValue(wchar_t c) {
    if (isAsciiDigit(c)) return c - L'0';
    if (c >= L'a' && c <= L'f') return c - L'a' + 10;
    if (c >= L'A' && c <= L'F') return c - L'A' + 10;
    return -1;
}

std::optional<Colour> namedColour(const std::wstring& name) {
    static const std::map<std::wstring, std::uint32_t> names = {
        {L"black", 0x000000},  {L"white", 0xFFFFFF},  {L"red", 0xFF0000},     {L"green", 0x008000},   {L"lime", 0x00FF00},
        {L"blue", 0x0000FF},   {L"yellow", 0xFFFF00}, {L"orange", 0xFFA500},  {L"gray", 0x808080},    {L"grey", 0x808080},
        {L"silver", 0xC0C0C0}, {L"maroon", 0x800000}, {L"navy", 0x000080},    {L"purple", 0x800080},  {L"teal", 0x008080},
        {L"aqua", 0x00FFFF},   {L"cyan", 0x00FFFF},   {L"fuchsia", 0xFF00FF}, {L"magenta", 0xFF00FF}, {L"olive", 0x808000}};
    auto it = names.find(name);
    if (it == names.end()) return std::nullopt;
    return colourFromARGB(0xFF000000u | it->second);
}

// #rgb, #rrggbb or #rrggbbaa (the '#' may be left out), or a colour name.
std::optional<Colour> parseColour(std::wstring_view value) {
    std::wstring v = lower(trim(value));
    if (auto named = namedColour(v)) return named;
    if (!v.empty() && v[0] == L'#') v.erase(0, 1);
    if (v.size() != 3 && v.size() != 6 && v.size() != 8) return std::nullopt;
    if (!std::all_of(v.begin(), v.end(), [](wchar_t c) { return hexValue(c) >= 0; })) return std::nullopt;
    if (v.size() == 3) v = {v[0], v[0], v[1], v[1], v[2], v[2]};
    auto byte = [&](std::size_t i) { return (hexValue(v[i]) * 16 + hexValue(v[i + 1])) / 255.0; };
    return Colour(byte(0), byte(2), byte(4), v.size() == 8 ? byte(6) : 1.0);
}

// HTML's sizes 1 to 7, 3 being normal, or "+n" / "-n" steps from 3.
std::optional<int> parseFontSize(std::wstring_view value) {
    std::wstring_view v = trim(value);
    int sign = 0;
    if (!v.empty() && (v[0] == L'+' || v[0] == L'-')) {
        sign = v[0] == L'+' ? 1 : -1;
        v.remove_prefix(1);
    }
    if (v.empty() || v.size() > 2 || !std::all_of(v.begin(), v.end(), isAsciiDigit)) return std::nullopt;
    int n = v.size() == 1 ? v[0] - L'0' : (v[0] - L'0') * 10 + (v[1] - L'0');
    return std::clamp(sign ? 3 + sign * n : n, 1, 7);
}

Glib::eHorizontalAlign parseAlign(std::wstring_view value) {
    std::wstring v = lower(trim(value));
    if (v == L"center" || v == L"centre" || v == L"middle") return Glib::kAlignCentreH;
    if (v == L"right") return Glib::kAlignRight;
    if (v == L"left" || v == L"justify") return Glib::kAlignLeft;
    return Glib::kAlignDefault;
}

int scaledSize(int base, double factor) { return std::max(1, static_cast<int>(std::lround(base * factor))); }

wchar_t checkedChar(unsigned long cp) {
    if (cp == 0 || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) return wchar_t(0xFFFD);
    return static_cast<wchar_t>(cp);
}

std::optional<wchar_t> numericEntity(std::wstring_view body) {
    bool hex = !body.empty() && (body[0] == L'x' || body[0] == L'X');
    if (hex) body.remove_prefix(1);
    if (body.empty() || body.size() > 8) return std::nullopt;
    unsigned long cp = 0;
    for (wchar_t c : body) {
        int d = hex ? hexValue(c) : (isAsciiDigit(c) ? c - L'0' : -1);
        if (d < 0) return std::nullopt;
        cp = cp * (hex ? 16 : 10) + static_cast<unsigned long>(d);
    }
    return checkedChar(cp);
}

} // namespace

std::wstring HTMLParser::Tag::attribute(const wchar_t* key) const {
    auto it = attributes.find(key);
    return it == attributes.end() ? std::wstring() : it->second;
}

HTMLParser::HTMLParser(const Palette& palette) : palette_(palette), baseFont_(Glib::getDefaultFont()) {
    Run base;
    base.font = baseFont_;
    base.colour = palette_.text(kTextNormal);
    styles_.push_back({base, std::wstring()});
}

// ---- Reading the text ----

LightweightVector<Paragraph> HTMLParser::parseMarkup(std::wstring_view text) {
    for (std::size_t i = 0; i < text.size();) {
        if (text[i] == L'<') {
            if (std::size_t end = skipDeclaration(text, i); end != npos) {
                i = end;
                continue;
            }
            if (auto tag = readTag(text, i)) {
                handleTag(*tag);
                i = (kindOf(tag->name) == Kind::kSkipped && !tag->closing) ? skipElementContent(text, tag->end, tag->name) : tag->end;
                continue;
            }
        } else if (text[i] == L'&') {
            if (auto entity = readEntity(text, i)) {
                addText(entity->first);
                i = entity->second;
                continue;
            }
        }
        addText(text[i++]);
    }
    if (current_) finishParagraph();
    return result_;
}

LightweightVector<Paragraph> HTMLParser::parsePlain(std::wstring_view text) {
    LightweightVector<Paragraph> result;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = std::min(text.find(L'\n', start), text.size());
        std::wstring_view line = text.substr(start, end - start);
        if (!line.empty() && line.back() == L'\r') line.remove_suffix(1);
        Paragraph p;
        if (!line.empty()) {
            p.runs.push_back(styles_.front().look);
            p.runs.back().text = LightweightString<wchar_t>(line);
        }
        result.push_back(p);
        start = end + 1;
    }
    return result;
}

bool HTMLParser::containsKnownTag(std::wstring_view text) {
    for (std::size_t i = text.find(L'<'); i != npos; i = text.find(L'<', i + 1)) {
        if (text.find(L'>', i) == npos) return false;
        if (auto tag = readTag(text, i); tag && kindOf(tag->name) != Kind::kUnknown) return true;
    }
    return false;
}

HTMLParser::Kind HTMLParser::kindOf(std::wstring_view name) {
    static const std::map<std::wstring_view, Kind> kinds = {
        {L"html", Kind::kIgnored},   {L"body", Kind::kIgnored},  {L"head", Kind::kSkipped}, {L"title", Kind::kSkipped}, {L"style", Kind::kSkipped},
        {L"script", Kind::kSkipped}, {L"p", Kind::kBlock},       {L"div", Kind::kBlock},    {L"h1", Kind::kHeading},    {L"h2", Kind::kHeading},
        {L"h3", Kind::kHeading},     {L"h4", Kind::kHeading},    {L"h5", Kind::kHeading},   {L"h6", Kind::kHeading},    {L"br", Kind::kBreak},
        {L"b", Kind::kInline},       {L"strong", Kind::kInline}, {L"i", Kind::kInline},     {L"em", Kind::kInline},     {L"u", Kind::kInline},
        {L"font", Kind::kInline},    {L"a", Kind::kInline},      {L"span", Kind::kInline}};
    auto it = kinds.find(name);
    return it == kinds.end() ? Kind::kUnknown : it->second;
}

// A tag is '<', an optional '/', a name that starts with a letter, then attributes
// up to a '>'. Anything else, an unclosed tag included, is not a tag but text.
std::optional<HTMLParser::Tag> HTMLParser::readTag(std::wstring_view text, std::size_t pos) {
    std::size_t j = pos + 1;
    Tag tag;
    if (j < text.size() && text[j] == L'/') {
        tag.closing = true;
        ++j;
    }
    if (j >= text.size() || !isAsciiAlpha(text[j])) return std::nullopt;
    std::size_t nameStart = j;
    while (j < text.size() && isNameChar(text[j])) ++j;
    tag.name = lower(text.substr(nameStart, j - nameStart));
    if (j < text.size() && !(text[j] == L'>' || text[j] == L'/' || isSpace(text[j]))) return std::nullopt;
    for (;;) {
        while (j < text.size() && (isSpace(text[j]) || text[j] == L'/')) ++j;
        if (j >= text.size()) return std::nullopt;
        if (text[j] == L'>') break;
        if (!readAttribute(text, j, tag)) return std::nullopt;
    }
    tag.end = j + 1;
    return tag;
}

// name, name=value, name="value" or name='value'. False when the name is not one
// ("a<b & c>d" is text, not a tag) or a quote is left open.
bool HTMLParser::readAttribute(std::wstring_view text, std::size_t& pos, Tag& tag) {
    std::size_t j = pos;
    if (!isAsciiAlpha(text[j])) return false;
    while (j < text.size() && isNameChar(text[j])) ++j;
    std::wstring name = lower(text.substr(pos, j - pos));
    std::size_t k = j;
    while (k < text.size() && isSpace(text[k])) ++k;
    std::wstring_view value;
    if (k < text.size() && text[k] == L'=') {
        ++k;
        while (k < text.size() && isSpace(text[k])) ++k;
        if (k >= text.size()) return false;
        if (text[k] == L'"' || text[k] == L'\'') {
            std::size_t close = text.find(text[k], k + 1);
            if (close == npos) return false;
            value = text.substr(k + 1, close - k - 1);
            j = close + 1;
        } else {
            std::size_t start = k;
            while (k < text.size() && !isSpace(text[k]) && text[k] != L'>') ++k;
            value = text.substr(start, k - start);
            j = k;
        }
    }
    tag.attributes.emplace(name, decodeEntities(value));
    pos = j;
    return true;
}

// Comments, <!DOCTYPE ...> and <?...?>: the position after them, or npos when
// the text at pos is none of these. An unclosed comment runs to the end.
std::size_t HTMLParser::skipDeclaration(std::wstring_view text, std::size_t pos) {
    std::wstring_view rest = text.substr(pos);
    if (rest.starts_with(L"<!--")) {
        std::size_t end = text.find(L"-->", pos + 4);
        return end == npos ? text.size() : end + 3;
    }
    if (rest.size() > 2 && ((rest[1] == L'!' && isAsciiAlpha(rest[2])) || rest[1] == L'?')) {
        std::size_t end = text.find(L'>', pos);
        return end == npos ? text.size() : end + 1;
    }
    return npos;
}

// Past the closing tag of an element whose content is not text (head, style...).
std::size_t HTMLParser::skipElementContent(std::wstring_view text, std::size_t pos, const std::wstring& name) {
    std::wstring closing = L"</" + name;
    std::wstring lowered = lower(text);
    for (std::size_t at = lowered.find(closing, pos); at != npos; at = lowered.find(closing, at + 1)) {
        if (auto tag = readTag(text, at); tag && tag->name == name) return tag->end;
    }
    return text.size();
}

// The character of an entity at pos and the position after it.
std::optional<std::pair<wchar_t, std::size_t>> HTMLParser::readEntity(std::wstring_view text, std::size_t pos) {
    constexpr std::size_t kLongest = 10;
    std::size_t semi = text.find(L';', pos + 1);
    if (semi == npos || semi - pos > kLongest) return std::nullopt;
    std::wstring_view body = text.substr(pos + 1, semi - pos - 1);
    static const std::map<std::wstring_view, wchar_t> named = {{L"lt", L'<'},   {L"gt", L'>'},    {L"amp", L'&'},
                                                               {L"quot", L'"'}, {L"apos", L'\''}, {L"nbsp", wchar_t(0xA0)}};
    if (auto it = named.find(body); it != named.end()) return std::make_pair(it->second, semi + 1);
    if (!body.empty() && body[0] == L'#') {
        if (auto c = numericEntity(body.substr(1))) return std::make_pair(*c, semi + 1);
    }
    return std::nullopt;
}

std::wstring HTMLParser::decodeEntities(std::wstring_view text) {
    std::wstring out;
    for (std::size_t i = 0; i < text.size();) {
        if (auto entity = text[i] == L'&' ? readEntity(text, i) : std::nullopt) {
            out += entity->first;
            i = entity->second;
        } else {
            out += text[i++];
        }
    }
    return out;
}

// ---- Building paragraphs ----

void HTMLParser::handleTag(const Tag& tag) {
    switch (kindOf(tag.name)) {
    case Kind::kBlock: tag.closing ? closeBlock() : openBlock(tag); break;
    case Kind::kHeading:
        if (tag.closing) {
            popStyle(tag.name);
            closeBlock();
        } else {
            openBlock(tag);
            pushStyle(tag);
        }
        break;
    case Kind::kBreak:
        if (!tag.closing) addBreak();
        break;
    case Kind::kInline: tag.closing ? popStyle(tag.name) : pushStyle(tag); break;
    default: break;
    }
}

// An empty paragraph that another opens inside (<div><p>) is not a line of its own.
void HTMLParser::openBlock(const Tag& tag) {
    if (current_ && !paragraph().text().empty()) finishParagraph();
    paragraph().align = parseAlign(tag.attribute(L"align"));
    skipSpace_ = true;
}

// A closed paragraph is a line even when empty: "<p></p>" is a blank line.
void HTMLParser::closeBlock() {
    if (current_) finishParagraph();
}

void HTMLParser::pushStyle(const Tag& tag) {
    Style s{styles_.back().look, tag.name};
    Run& look = s.look;
    if (tag.name == L"b" || tag.name == L"strong") look.font.style |= Glib::FontDesc::kBold;
    if (tag.name == L"i" || tag.name == L"em") look.font.style |= Glib::FontDesc::kItalic;
    if (tag.name == L"u") look.underline = true;
    if (tag.name == L"a") {
        look.underline = true;
        look.link = LightweightString<wchar_t>(tag.attribute(L"href"));
    }
    if (tag.name == L"font") applyFontTag(tag, look);
    if (kindOf(tag.name) == Kind::kHeading) applyHeading(tag.name, look);
    styles_.push_back(s);
}

// Closes the innermost open element of that name and all opened inside it; a
// closing tag with nothing open to close is ignored.
void HTMLParser::popStyle(const std::wstring& name) {
    for (std::size_t i = styles_.size(); i-- > 1;) {
        if (styles_[i].tag == name) {
            styles_.resize(i);
            return;
        }
    }
}

void HTMLParser::applyFontTag(const Tag& tag, Run& look) const {
    if (auto colour = parseColour(tag.attribute(L"color"))) look.colour = *colour;
    if (auto size = parseFontSize(tag.attribute(L"size"))) {
        static constexpr std::array<double, 7> kFactors = {0.625, 0.8125, 1.0, 1.125, 1.5, 2.0, 3.0};
        look.font.size = scaledSize(baseFont_.size, kFactors[static_cast<std::size_t>(*size - 1)]);
    }
    std::wstring face = tag.attribute(L"face");
    if (!trim(face).empty()) look.font.name = toUTF8(LightweightString<wchar_t>(trim(face)));
}

void HTMLParser::applyHeading(const std::wstring& name, Run& look) const {
    static constexpr std::array<double, 6> kFactors = {1.5, 1.3, 1.15, 1.0, 1.0, 1.0};
    look.font.size = scaledSize(baseFont_.size, kFactors[static_cast<std::size_t>(name[1] - L'1')]);
    look.font.style |= Glib::FontDesc::kBold;
    look.colour = palette_.subheadingText();
}

void HTMLParser::addText(wchar_t c) {
    if (isSpace(c)) {
        if (skipSpace_) return;
        append(L' ');
        skipSpace_ = true;
        return;
    }
    append(c);
    skipSpace_ = false;
}

void HTMLParser::addBreak() {
    trimTrailingSpaces();
    append(L'\n');
    skipSpace_ = true;
}

void HTMLParser::append(wchar_t c) {
    Paragraph& p = paragraph();
    const Run& look = styles_.back().look;
    if (p.runs.empty() || !p.runs.back().sameStyle(look)) {
        p.runs.push_back(look);
        p.runs.back().text.clear();
    }
    p.runs.back().text.push_back(c);
}

void HTMLParser::trimTrailingSpaces() {
    if (!current_) return;
    auto& runs = current_->runs;
    while (!runs.empty()) {
        LightweightString<wchar_t>& t = runs.back().text;
        std::size_t keep = t.view().find_last_not_of(L' ');
        if (keep != npos) {
            t.resize(keep + 1);
            return;
        }
        runs.pop_back();
    }
}

// A <br> at the very end of a paragraph makes no extra line, as in HTML.
void HTMLParser::finishParagraph() {
    trimTrailingSpaces();
    auto& runs = current_->runs;
    if (!runs.empty() && runs.back().text.endsWith(L"\n")) {
        runs.back().text.resize(runs.back().text.size() - 1);
        if (runs.back().text.empty()) runs.pop_back();
    }
    result_.push_back(*current_);
    current_.reset();
    skipSpace_ = true;
}

Paragraph& HTMLParser::paragraph() {
    if (!current_) current_.emplace();
    return *current_;
}
