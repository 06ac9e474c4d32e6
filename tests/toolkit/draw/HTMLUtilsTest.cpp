#include "draw/HTMLUtils.h"
#include "draw/HTMLRenderer.h"

#include <gtest/gtest.h>

namespace {

const Colour kTextColour(0.9, 0.9, 0.9);

LightweightVector<HTMLRenderer::Paragraph> readBack(const LightweightString<wchar_t>& html) {
    Palette p;
    p.setColour(Palette::kText, kTextColour);
    return HTMLRenderer::parse(html, p);
}

} // namespace

TEST(HTMLUtils, TagsWrapTheWholeTextOrAStretch) {
    EXPECT_EQ(HTMLUtils::addParagraphTags(L"row", -1, -1), L"<p>row</p>");
    EXPECT_EQ(HTMLUtils::addStyleTags(L"hello world", HTMLUtils::kBold, 6, 11), L"hello <b>world</b>");
    EXPECT_EQ(HTMLUtils::addStyleTags(L"hello world", HTMLUtils::kItalic, -1, 5), L"<i>hello</i> world");
    EXPECT_EQ(HTMLUtils::addStyleTags(L"hello", HTMLUtils::kBold, 2, 400), L"he<b>llo</b>") << "past the end is the end";
    EXPECT_EQ(HTMLUtils::addStyleTags(L"hello", HTMLUtils::kBold, 9, 12), L"hello<b></b>") << "both past the end: an empty stretch at it";
    EXPECT_EQ(HTMLUtils::addStyleTags(L"ab", 3, -1, -1), L"<b><i>ab</i></b>");
    EXPECT_EQ(HTMLUtils::addColourTags(L"warn", 0.6, 0.6, 0.0, 1.0, -1, -1), L"<font color=\"#999900\">warn</font>");
    EXPECT_EQ(HTMLUtils::addColourTags(L"half", Colour(1.0, 0.0, 0.0, 0.5)), L"<font color=\"#ff000080\">half</font>");
}

TEST(HTMLUtils, BadStretchesAndStylesLeaveTheTextAlone) {
    EXPECT_EQ(HTMLUtils::addStyleTags(L"hello", HTMLUtils::kBold, 4, 2), L"hello");
    EXPECT_EQ(HTMLUtils::addStyleTags(L"hello", 0, -1, -1), L"hello");
    EXPECT_EQ(HTMLUtils::addStyleTags(L"hello", 64, -1, -1), L"hello");
    EXPECT_EQ(HTMLUtils::addColourTags(L"x", -3.0, 7.0, 0.5, 1.0), L"<font color=\"#00ff80\">x</font>") << "components are clamped";
}

TEST(HTMLUtils, AnEmptyParagraphReadsBackAsOneBlankLine) {
    LightweightString<wchar_t> html = HTMLUtils::addParagraphTags(L"", -1, -1);
    EXPECT_EQ(html, L"<p></p>");
    EXPECT_TRUE(HTMLRenderer::isHTML(html));
    auto ps = readBack(html);
    ASSERT_EQ(ps.size(), 1u);
    EXPECT_TRUE(ps[0].text().empty());
    EXPECT_EQ(HTMLRenderer::calcNumDisplayLines(ps, 200), 1);
}

TEST(HTMLUtils, StylesAndColoursReadBackThroughTheRenderer) {
    auto html = HTMLUtils::addColourTags(HTMLUtils::addStyleTags(L"Render failed on clip 7", 1, 14, -1), 1.0, 0.0, 0.0, 1.0, -1, -1);
    html = HTMLUtils::addParagraphTags(html, -1, -1);
    auto ps = readBack(html);
    ASSERT_EQ(ps.size(), 1u);
    const auto& runs = ps[0].runs;
    ASSERT_EQ(runs.size(), 2u);
    EXPECT_EQ(runs[0].text, L"Render failed ");
    EXPECT_EQ(runs[0].font.style, Glib::FontDesc::kPlain);
    EXPECT_EQ(runs[1].text, L"on clip 7");
    EXPECT_EQ(runs[1].font.style, Glib::FontDesc::kBold);
    for (const auto& r : runs) EXPECT_EQ(asARGB(r.colour), 0xFFFF0000u);

    for (auto colour : {Colour(0.6, 0.6, 0.0), Colour(0.0, 0.8, 0.2), Colour(0.2, 0.3, 0.4, 0.25)}) {
        auto back = readBack(HTMLUtils::addColourTags(L"c", colour));
        ASSERT_EQ(back.size(), 1u);
        EXPECT_EQ(asARGB(back[0].runs.at(0).colour), asARGB(colour));
    }
    auto emphasis = readBack(HTMLUtils::addStyleTags(L"note", 2, -1, -1));
    EXPECT_EQ(emphasis[0].runs.at(0).font.style, Glib::FontDesc::kItalic);
    EXPECT_EQ(asARGB(emphasis[0].runs.at(0).colour), asARGB(kTextColour));
    auto underlined = readBack(HTMLUtils::addStyleTags(L"u", HTMLUtils::kUnderline | HTMLUtils::kBold, -1, -1));
    EXPECT_TRUE(underlined[0].runs.at(0).underline);
    EXPECT_EQ(underlined[0].runs.at(0).font.style, Glib::FontDesc::kBold);
}

TEST(HTMLUtils, EscapingKeepsMarkupCharactersInTextAsText) {
    EXPECT_EQ(HTMLUtils::escape(L"a < b && c > \"d\""), L"a &lt; b &amp;&amp; c &gt; &quot;d&quot;");
    EXPECT_EQ(HTMLUtils::escape(L"plain"), L"plain");
    EXPECT_TRUE(HTMLUtils::escape(L"").empty());
    EXPECT_EQ(HTMLUtils::escape(L"&lt;"), L"&amp;lt;") << "an entity in the text is text too";

    // A log line that looks like mark-up reads back as the very same characters.
    LightweightString<wchar_t> line(L"<b>not bold</b> & <font color=\"#ff0000\">x</font>");
    auto html = HTMLUtils::addColourTags(HTMLUtils::escape(line), 1.0, 0.0, 0.0, 1.0, -1, -1);
    auto ps = readBack(HTMLUtils::addParagraphTags(html));
    ASSERT_EQ(ps.size(), 1u);
    ASSERT_EQ(ps[0].runs.size(), 1u);
    EXPECT_EQ(ps[0].runs[0].text, line);
    EXPECT_EQ(ps[0].runs[0].font.style, Glib::FontDesc::kPlain);
    EXPECT_EQ(asARGB(ps[0].runs[0].colour), 0xFFFF0000u);
}
