#include "core/Utf8.h"
#include "draw/HTMLRenderer.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using Glib::FontDesc;

// A palette whose text and subheading colours are easy to tell apart.
Palette testPalette() {
    Palette p;
    p.setColour(Palette::kText, Colour(0.9, 0.9, 0.9));
    p.setColour(Palette::kSubheading, Colour(0.2, 0.4, 1.0));
    return p;
}

LightweightVector<HTMLRenderer::Paragraph> parse(const wchar_t* text) { return HTMLRenderer::parse(text, testPalette()); }

std::vector<std::wstring> texts(const LightweightVector<HTMLRenderer::Paragraph>& ps) {
    std::vector<std::wstring> r;
    for (const auto& p : ps) r.push_back(p.text().str());
    return r;
}

std::uint32_t argbOf(const HTMLRenderer::Run& r) { return asARGB(r.colour); }

} // namespace

TEST(HTMLParse, RecognisesMarkUpOnlyByKnownTags) {
    for (const wchar_t* html :
         {L"<b>bold</b>", L"  <p>para", L"one<br>two", L"<BR/>", L"<FONT color=red>x</FONT>", L"x <i class=\"a > b\">y", L"</p>", L"<h2>Title</h2>"})
        EXPECT_TRUE(HTMLRenderer::isHTML(html)) << html;
    for (const wchar_t* plain :
         {L"", L"a < b and c > d", L"x<y>z", L"R&D &amp; more", L"<b", L"<b2>", L"< b>", L"<!-- -->", L"1<2 but 3>2", L"if a<b && c>d"})
        EXPECT_FALSE(HTMLRenderer::isHTML(plain)) << plain;
}

TEST(HTMLParse, InlineTagsMakeStyledRuns) {
    auto ps = parse(L"<p>Plain <b>bold <i>both</i></b> <u>under</u> <strong>s</strong><em>e</em></p>");
    ASSERT_EQ(ps.size(), 1u);
    const auto& runs = ps[0].runs;
    ASSERT_EQ(runs.size(), 8u);
    EXPECT_EQ(runs[0].text, L"Plain ");
    EXPECT_EQ(runs[0].font, Glib::getDefaultFont());
    EXPECT_EQ(runs[1].text, L"bold ");
    EXPECT_EQ(runs[1].font.style, FontDesc::kBold);
    EXPECT_EQ(runs[2].text, L"both");
    EXPECT_EQ(runs[2].font.style, FontDesc::kBold | FontDesc::kItalic);
    EXPECT_EQ(runs[3].text, L" ");
    EXPECT_EQ(runs[3].font.style, FontDesc::kPlain);
    EXPECT_EQ(runs[4].text, L"under");
    EXPECT_TRUE(runs[4].underline);
    EXPECT_FALSE(runs[3].underline);
    EXPECT_EQ(runs[5].text, L" ");
    EXPECT_EQ(runs[6].font.style, FontDesc::kBold);
    EXPECT_EQ(runs[7].font.style, FontDesc::kItalic);
    for (const auto& r : runs) EXPECT_EQ(argbOf(r), asARGB(Colour(0.9, 0.9, 0.9)));
    EXPECT_EQ(ps[0].align, Glib::kAlignDefault);
}

TEST(HTMLParse, FontTagsSetColourSizeAndFace) {
    auto ps = parse(L"<font color=\"#00ff00\" size=\"5\" face=\" DejaVu Serif \">a</font>"
                    L"<font color='#f00' size=+1>b</font><font color=Navy size=1>c</font><font color=\"#11223380\">d</font>");
    ASSERT_EQ(ps.size(), 1u);
    const auto& runs = ps[0].runs;
    ASSERT_EQ(runs.size(), 4u);
    int base = Glib::getDefaultFont().size;
    EXPECT_EQ(argbOf(runs[0]), 0xFF00FF00u);
    EXPECT_EQ(runs[0].font.size, std::lround(base * 1.5));
    EXPECT_EQ(runs[0].font.name, "DejaVu Serif");
    EXPECT_EQ(argbOf(runs[1]), 0xFFFF0000u);
    EXPECT_GT(runs[1].font.size, base);
    EXPECT_LT(runs[1].font.size, runs[0].font.size);
    EXPECT_EQ(argbOf(runs[2]), 0xFF000080u);
    EXPECT_LT(runs[2].font.size, base);
    EXPECT_EQ(argbOf(runs[3]), 0x80112233u);
}

TEST(HTMLParse, BadAttributeValuesAreIgnored) {
    auto ps = parse(L"<font color=\"#zzzzzz\" size=\"huge\" face=\"\">a</font><font color=\"#12345\" size=\"99\">b</font><font color>c</font>");
    ASSERT_EQ(ps.size(), 1u);
    const auto& runs = ps[0].runs;
    ASSERT_EQ(runs.size(), 3u);
    EXPECT_EQ(runs[0].text, L"a");
    EXPECT_TRUE(runs[2].sameStyle(runs[0]));
    EXPECT_EQ(runs[0].font, Glib::getDefaultFont());
    EXPECT_EQ(argbOf(runs[0]), asARGB(Colour(0.9, 0.9, 0.9)));
    EXPECT_EQ(runs[1].text, L"b");
    EXPECT_EQ(runs[1].font.size, std::lround(Glib::getDefaultFont().size * 3.0)) << "sizes past 7 count as 7";
    EXPECT_EQ(argbOf(runs[1]), asARGB(Colour(0.9, 0.9, 0.9)));
    auto merged = parse(L"<p>a<font>c</font></p>");
    ASSERT_EQ(merged[0].runs.size(), 1u) << "a tag that changes nothing starts no new run";
    EXPECT_EQ(merged[0].runs[0].text, L"ac");
}

TEST(HTMLParse, ParagraphsBreaksAndWhiteSpace) {
    EXPECT_EQ(texts(parse(L"<p>one</p>\n  <p>two</p>")), (std::vector<std::wstring>{L"one", L"two"}));
    EXPECT_EQ(texts(parse(L"<p>  lots \n of\t  space  </p>")), (std::vector<std::wstring>{L"lots of space"}));
    EXPECT_EQ(texts(parse(L"before<p>inside</p>after")), (std::vector<std::wstring>{L"before", L"inside", L"after"}));
    EXPECT_EQ(texts(parse(L"one <br> two<br/>three<br>")), (std::vector<std::wstring>{L"one\ntwo\nthree"}));
    EXPECT_EQ(texts(parse(L"<p></p><p>x</p>")), (std::vector<std::wstring>{L"", L"x"})) << "an empty paragraph is a blank line";
    EXPECT_EQ(texts(parse(L"<p><br></p>")), (std::vector<std::wstring>{L""}));
    EXPECT_EQ(texts(parse(L"<div align=right><p>nested</p></div>")), (std::vector<std::wstring>{L"nested"}));
    EXPECT_EQ(texts(parse(L"<b>a</b> <i>b</i>")), (std::vector<std::wstring>{L"a b"}));
    EXPECT_EQ(texts(parse(L"<p>a&nbsp;&nbsp;b</p>")), (std::vector<std::wstring>{L"a\u00A0\u00A0b"}));
}

TEST(HTMLParse, AlignmentComesFromTheAlignAttribute) {
    auto ps = parse(L"<p align=\"center\">c</p><p ALIGN=Right>r</p><p align=left>l</p><div align=\"sideways\">d</div>");
    ASSERT_EQ(ps.size(), 4u);
    EXPECT_EQ(ps[0].align, Glib::kAlignCentreH);
    EXPECT_EQ(ps[1].align, Glib::kAlignRight);
    EXPECT_EQ(ps[2].align, Glib::kAlignLeft);
    EXPECT_EQ(ps[3].align, Glib::kAlignDefault);
}

TEST(HTMLParse, HeadingsAreParagraphsInALargerBoldSubheadingFace) {
    auto ps = parse(L"<h1>Big</h1>body<h3 align=center>Small</h3>");
    ASSERT_EQ(ps.size(), 3u);
    const auto& h1 = ps[0].runs.at(0);
    const auto& body = ps[1].runs.at(0);
    const auto& h3 = ps[2].runs.at(0);
    EXPECT_TRUE(h1.font.style & FontDesc::kBold);
    EXPECT_GT(h1.font.size, h3.font.size);
    EXPECT_GT(h3.font.size, body.font.size);
    EXPECT_EQ(argbOf(h1), asARGB(Colour(0.2, 0.4, 1.0)));
    EXPECT_EQ(argbOf(body), asARGB(Colour(0.9, 0.9, 0.9)));
    EXPECT_EQ(body.font, Glib::getDefaultFont());
    EXPECT_EQ(ps[2].align, Glib::kAlignCentreH);
}

TEST(HTMLParse, EntitiesAreDecodedAndUnknownOnesKept) {
    auto ps = parse(L"<p>&lt;b&gt; &amp; &quot;q&quot; &apos; &#65;&#x42;&#X43; &bogus; &#xD800; &#99999999; &#99999999999; &amp</p>");
    ASSERT_EQ(ps.size(), 1u);
    EXPECT_EQ(ps[0].text(), L"<b> & \"q\" ' ABC &bogus; \uFFFD \uFFFD &#99999999999; &amp");
    EXPECT_EQ(ps[0].runs.size(), 1u) << "decoded mark-up characters are text, not tags";
    auto linked = parse(L"<a href=\"x?a=1&amp;b=2\">link</a>");
    ASSERT_EQ(linked.size(), 1u);
    EXPECT_EQ(linked[0].runs.at(0).link, L"x?a=1&b=2");
    EXPECT_TRUE(linked[0].runs.at(0).underline);
}

TEST(HTMLParse, UnclosedAndStrayTagsDegradeLikeABrowser) {
    auto unclosed = parse(L"<b>bold to the end<p>still bold");
    ASSERT_EQ(unclosed.size(), 2u);
    EXPECT_TRUE(unclosed[1].runs.at(0).font.style & FontDesc::kBold);
    // A closing tag with nothing open is ignored; closing an outer tag closes what is inside.
    auto stray = parse(L"<b>a</i>b</b>c <b><i>d</b>e</i>");
    ASSERT_EQ(stray.size(), 1u);
    const auto& runs = stray[0].runs;
    ASSERT_EQ(runs.size(), 4u);
    EXPECT_EQ(runs[0].text, L"ab");
    EXPECT_EQ(runs[1].text, L"c ");
    EXPECT_EQ(runs[2].text, L"d");
    EXPECT_EQ(runs[2].font.style, FontDesc::kBold | FontDesc::kItalic);
    EXPECT_EQ(runs[3].text, L"e");
    EXPECT_EQ(runs[3].font.style, FontDesc::kPlain);
    // A tag that never ends is text.
    EXPECT_EQ(texts(parse(L"<p>a <b class=\"never closed</p>")), (std::vector<std::wstring>{L"a <b class=\"never closed"}));
    EXPECT_EQ(texts(parse(L"<p>trailing <")), (std::vector<std::wstring>{L"trailing <"}));
}

TEST(HTMLParse, UnknownTagsCommentsAndHeadsAreDropped) {
    EXPECT_EQ(texts(parse(L"<b><blink>on</blink> <x-y>off</x-y></b>")), (std::vector<std::wstring>{L"on off"}));
    EXPECT_EQ(texts(parse(L"<!DOCTYPE html><html><head><title>Log</title><style>p{}</style></head>"
                          L"<body><!-- note --><p>row</p></body></html>")),
              (std::vector<std::wstring>{L"row"}));
    EXPECT_EQ(texts(parse(L"<p>kept</p><!-- never closed <p>gone</p>")), (std::vector<std::wstring>{L"kept"}));
    EXPECT_EQ(texts(parse(L"<p>kept</p><script>gone")), (std::vector<std::wstring>{L"kept"}));
    EXPECT_EQ(texts(parse(L"<b></b>")), std::vector<std::wstring>{});
}

TEST(HTMLParse, PlainTextIsTakenLiterallyLineByLine) {
    auto ps = parse(L"first  line &amp; <y>\r\nsecond\n\nfourth\n");
    EXPECT_EQ(texts(ps), (std::vector<std::wstring>{L"first  line &amp; <y>", L"second", L"", L"fourth"}));
    ASSERT_EQ(ps[0].runs.size(), 1u);
    EXPECT_EQ(ps[0].runs[0].font, Glib::getDefaultFont());
    EXPECT_EQ(argbOf(ps[0].runs[0]), asARGB(Colour(0.9, 0.9, 0.9)));
    EXPECT_TRUE(ps[2].runs.empty());
    EXPECT_TRUE(parse(L"").empty());
    EXPECT_EQ(texts(parse(L"\n")), (std::vector<std::wstring>{L""}));
}

TEST(HTMLParse, TextThatIsNotUTF8OrNotUnicodeStillParses) {
    auto decoded = HTMLRenderer::parse(fromUTF8("\xFF\xFE<b>x\xC3</b>"), testPalette());
    ASSERT_EQ(decoded.size(), 1u);
    EXPECT_EQ(decoded[0].text(), L"\uFFFD\uFFFDx\uFFFD");
    wchar_t odd[] = {L'<', L'i', L'>', static_cast<wchar_t>(0xDC00), 0, static_cast<wchar_t>(-5), L'<', L'/', L'i', L'>'};
    auto ps = HTMLRenderer::parse(LightweightString<wchar_t>(odd, 10), testPalette());
    ASSERT_EQ(ps.size(), 1u);
    EXPECT_EQ(ps[0].text().size(), 3u);
    EXPECT_EQ(HTMLRenderer::calcNumDisplayLines(ps, 0), 1);
}
