// The value types of the media layer: format UIDs and frame rates through their
// texts, the format table, and video formats as set members.
#include "media/ShotVideoMetadata.h"

#include <gtest/gtest.h>

#include <set>

using Zn::DigitalVideoFormats;
using Groups = DigitalVideoFormats::FormatGroups;

TEST(FormatUIDText, RoundTripsAndAnythingElseIsNoFormat) {
    for (std::uint32_t v : {1u, 27u, 4294967295u}) EXPECT_EQ(Zn::Image::FormatUID(Zn::Image::FormatUID(v).toString()).value(), v);
    for (const char* bad : {"", "-1", "12a", " 7", "4294967296", "99999999999999999999", "0x1b"})
        EXPECT_TRUE(Zn::Image::FormatUID(LightweightString<char>(bad)).isNull()) << bad;
}

TEST(FrameRateTexts, EveryRateHasItsOwnTextThatReadsBack) {
    std::vector<Zn::FrameRate> all;
    Zn::getFrameRates(Zn::FrameRateGroups::kAllRates, all);
    ASSERT_GE(all.size(), 16u);
    std::set<std::wstring> texts;
    for (Zn::FrameRate r : all) {
        const LightweightString<wchar_t> text = Zn::getDisplayString(r);
        EXPECT_FALSE(text.empty());
        EXPECT_TRUE(texts.insert(text.str()).second) << "shared text " << text.str().size();
        EXPECT_EQ(Zn::getFrameRateFromDisplayString(text), r);
        EXPECT_EQ(Zn::getFrameRateFromDisplayString(L" " + text + L"\t"), r);
    }
    for (const wchar_t* bad : {L"", L"25.0", L"2 5", L"29,97", L"fast"}) EXPECT_EQ(Zn::getFrameRateFromDisplayString(bad), Zn::kFrameRateNone);
    EXPECT_TRUE(Zn::getDisplayString(static_cast<Zn::FrameRate>(999)).empty());
}

TEST(FrameRateGroups, TheVideoGroupRunsSlowestFirstAndLeavesOutOtherRates) {
    std::vector<Zn::FrameRate> video{Zn::kFrameRate120};
    Zn::getFrameRates(Zn::FrameRateGroups::kVideoRates, video);
    const std::vector<Zn::FrameRate> expected{Zn::kFrameRate23_976, Zn::kFrameRate24, Zn::kFrameRate25,    Zn::kFrameRate29_97,
                                              Zn::kFrameRate30,     Zn::kFrameRate50, Zn::kFrameRate59_94, Zn::kFrameRate60};
    EXPECT_EQ(video, expected);
}

TEST(FormatTable, UIDsAreStableAndUnknownOnesGiveNoFormat) {
    const auto& table = DigitalVideoFormats::getFormats();
    std::set<std::wstring> names;
    for (const auto& f : table) {
        EXPECT_EQ(DigitalVideoFormats::findByUID(f.uid).name, f.name);
        EXPECT_TRUE(names.insert(f.name).second);
        EXPECT_NE(f.frameRate, Zn::kFrameRateNone);
    }
    // Preferences keep these numbers.
    const auto f1080p25 = DigitalVideoFormats::findByUID(Zn::Image::FormatUID(27));
    EXPECT_EQ(f1080p25.width, 1920);
    EXPECT_EQ(f1080p25.frameRate, Zn::kFrameRate25);
    EXPECT_EQ(f1080p25.scanMode, Zn::Image::kProgressive);
    EXPECT_EQ(DigitalVideoFormats::findByUID(Zn::Image::FormatUID(4)).group, Groups::kSD625);
    for (std::uint32_t bad : {0u, static_cast<std::uint32_t>(table.size() + 1), 0xFFFFFFFFu}) {
        EXPECT_FALSE(DigitalVideoFormats::isValidFormat(Zn::Image::FormatUID(bad)));
        EXPECT_EQ(DigitalVideoFormats::findByUID(Zn::Image::FormatUID(bad)).width, 0);
    }
    EXPECT_NE(Zn::getDisplayString(Groups::kHD720), Zn::getDisplayString(Groups::kHD1080));
    EXPECT_EQ(Zn::getDisplayString(static_cast<Groups::FormatGroup>(-3)), Zn::getDisplayString(Groups::kOtherFormats));
}

namespace {
ShotVideoMetadata format(std::uint32_t uid, Zn::Image::AspectRatio aspect = Zn::Image::kAspectUnknown, unsigned short bpc = 8) {
    return ShotVideoMetadata(DigitalVideoFormats::findByUID(Zn::Image::FormatUID(uid)), Zn::Image::Format("YUY2"), Zn::kFrameRateNone, aspect, true,
                             Zn::Image::kProgressive, bpc);
}
} // namespace

TEST(VideoFormats, OrderAndEqualityAgreeSoASetHoldsEachFormatOnce) {
    const std::vector<ShotVideoMetadata> formats{
        format(27), format(27, Zn::Image::kAspect16x9), format(27, Zn::Image::kAspectUnknown, 10), format(28), format(4), ShotVideoMetadata()};
    for (const auto& a : formats)
        for (const auto& b : formats) EXPECT_EQ(a == b, !(a < b) && !(b < a));
    std::set<ShotVideoMetadata> set(formats.begin(), formats.end());
    set.insert(format(27));
    EXPECT_EQ(set.size(), formats.size());
    EXPECT_EQ(format(27).getBitsPerPixel(), 16) << "YUY2 has two components a pixel";
    EXPECT_EQ(format(27).getFrameRate(), Zn::kFrameRate25) << "the table's rate";
}

TEST(VideoFormats, DisplayTextsNameTableFormatsAndDescribeOthers) {
    EXPECT_EQ(format(14).getDisplayString(), L"1080i 50");
    ShotVideoMetadata odd;
    odd.width = 1000;
    odd.height = 500;
    odd.frameRate = Zn::kFrameRate25;
    EXPECT_EQ(odd.getDisplayString(), L"1000x500p 25");
    EXPECT_TRUE(ShotVideoMetadata().getDisplayString().empty());
    EXPECT_EQ(Zn::Image::Format("YUY2").code(), 0x32595559u);
    EXPECT_EQ(Zn::Image::Format(0x01020341u).toString(), "A???");
}
