#include "tasks/HyperLink.h"

#include <gtest/gtest.h>

using HyperLink = LoggerBase::HyperLink;

TEST(HyperLink, ABarePathOrAddressIsOneExternalTargetShownAsItself) {
    for (const wchar_t* text : {L"/home/ed/renders/final.mov", L"https://example.com/help", L"relative/name.edl", L"C:\\media\\a|b"}) {
        HyperLink link = HyperLink::fromString(text);
        ASSERT_EQ(link.getTargets().size(), 1u) << text;
        EXPECT_EQ(link.getTargets()[0], text);
        EXPECT_EQ(link.getDescription(), text);
        EXPECT_FALSE(link.isInternal());
        EXPECT_EQ(link.toString(), text) << "a bare target writes back bare";
    }
}

TEST(HyperLink, AnInternalLinksFirstTargetIsTheJsonText) {
    LightweightString<wchar_t> json(L"{\"type\":\"ColourPicker\",\"params\":{\"title\":\"Grade\"}}");
    HyperLink link = HyperLink::fromString(json);
    ASSERT_EQ(link.getTargets().size(), 1u);
    EXPECT_EQ(link.getTargets()[0], json);
    EXPECT_TRUE(link.isInternal());
    EXPECT_EQ(link.toString(), json);

    HyperLink described({json}, L"Open the picker");
    HyperLink back = HyperLink::fromString(described.toString());
    EXPECT_TRUE(back.isInternal());
    EXPECT_EQ(back.getDescription(), L"Open the picker");
    ASSERT_EQ(back.getTargets().size(), 1u);
    EXPECT_EQ(back.getTargets()[0], json);

    HyperLink broken = HyperLink::fromString(L"  {not json");
    EXPECT_TRUE(broken.isInternal()) << "decided by the brace: the click then finds nothing to open";
    EXPECT_EQ(broken.getTargets()[0], L"  {not json");
}

TEST(HyperLink, SeveralTargetsAndADescriptionRoundTrip) {
    std::vector<LightweightString<wchar_t>> targets{L"/a/one.mov", L"/b/two, with comma.mov", L"/c/p\u00e9|pe \"q\".wav"};
    HyperLink link(targets, L"Three r\u00e9nders");
    LightweightString<wchar_t> text = link.toString();
    EXPECT_EQ(text[0], L'{');
    HyperLink back = HyperLink::fromString(text);
    EXPECT_EQ(back.getTargets(), targets);
    EXPECT_EQ(back.getDescription(), L"Three r\u00e9nders");
    EXPECT_FALSE(back.isInternal());
}

TEST(HyperLink, EmptyAndOddInputDegradesToFewerTargets) {
    EXPECT_TRUE(HyperLink::fromString(L"").empty());
    EXPECT_TRUE(HyperLink::fromString(L"").getDescription().empty());
    EXPECT_TRUE(HyperLink::fromString(L"").toString().empty());
    EXPECT_TRUE(HyperLink(L"").empty());

    HyperLink dropped({L"", L"/kept", L""}, L"");
    ASSERT_EQ(dropped.getTargets().size(), 1u);
    EXPECT_EQ(dropped.toString(), L"/kept");

    HyperLink noTargets = HyperLink::fromString(L"{\"hyperlink\":{\"targets\":[1,null,\"\"],\"description\":7}}");
    EXPECT_TRUE(noTargets.empty()) << "targets that are not strings are dropped";
    EXPECT_TRUE(noTargets.getDescription().empty());
    HyperLink notAnEnvelope = HyperLink::fromString(L"{\"hyperlink\":\"x\"}");
    ASSERT_EQ(notAnEnvelope.getTargets().size(), 1u) << "an envelope that is no object is one internal target";
    EXPECT_TRUE(notAnEnvelope.isInternal());

    // A lone target that would read as an envelope is wrapped, so it survives.
    LightweightString<wchar_t> lookalike(L"{\"hyperlink\":{\"targets\":[\"/x\"]}}");
    HyperLink odd(lookalike);
    HyperLink back = HyperLink::fromString(odd.toString());
    ASSERT_EQ(back.getTargets().size(), 1u);
    EXPECT_EQ(back.getTargets()[0], lookalike);

    // Values that are not characters must not break the writer.
    LightweightString<wchar_t> bad(L"/x");
    bad.push_back(static_cast<wchar_t>(0xD800));
    HyperLink withBad({bad, L"/y"}, L"d");
    EXPECT_EQ(HyperLink::fromString(withBad.toString()).getTargets().size(), 2u);
}
