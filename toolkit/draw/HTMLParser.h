#pragma once

#include "HTMLRenderer.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Reads HTMLRenderer's mark-up into paragraphs of styled runs. It never fails:
/// what it does not understand is dropped or kept as text, as a browser would.
class HTMLParser {
public:
    explicit HTMLParser(const Palette& palette);

    LightweightVector<HTMLRenderer::Paragraph> parseMarkup(std::wstring_view text);
    // One paragraph per line, no mark-up; a line feed at the very end adds no line.
    LightweightVector<HTMLRenderer::Paragraph> parsePlain(std::wstring_view text);

    static bool containsKnownTag(std::wstring_view text);

private:
    struct Tag {
        std::wstring name; // lower case
        bool closing = false;
        std::map<std::wstring, std::wstring> attributes;
        std::size_t end = 0; // just past the '>'
        std::wstring attribute(const wchar_t* key) const;
    };
    struct Style {
        HTMLRenderer::Run look;
        std::wstring tag;
    };
    enum class Kind { kUnknown, kIgnored, kSkipped, kBlock, kHeading, kBreak, kInline };

    static Kind kindOf(std::wstring_view name);
    static std::optional<Tag> readTag(std::wstring_view text, std::size_t pos);
    static bool readAttribute(std::wstring_view text, std::size_t& pos, Tag& tag);
    static std::size_t skipDeclaration(std::wstring_view text, std::size_t pos);
    static std::size_t skipElementContent(std::wstring_view text, std::size_t pos, const std::wstring& name);
    static std::optional<std::pair<wchar_t, std::size_t>> readEntity(std::wstring_view text, std::size_t pos);
    static std::wstring decodeEntities(std::wstring_view text);

    void handleTag(const Tag& tag);
    void openBlock(const Tag& tag);
    void closeBlock();
    void pushStyle(const Tag& tag);
    void popStyle(const std::wstring& name);
    void applyFontTag(const Tag& tag, HTMLRenderer::Run& look) const;
    void applyHeading(const std::wstring& name, HTMLRenderer::Run& look) const;
    void addText(wchar_t c);
    void addBreak();
    void append(wchar_t c);
    void trimTrailingSpaces();
    void finishParagraph();
    HTMLRenderer::Paragraph& paragraph();

    Palette palette_;
    Glib::FontDesc baseFont_;
    std::vector<Style> styles_;
    std::optional<HTMLRenderer::Paragraph> current_;
    // True where a space would be dropped: at the start of a line, after a space.
    bool skipSpace_ = true;
    LightweightVector<HTMLRenderer::Paragraph> result_;
};
