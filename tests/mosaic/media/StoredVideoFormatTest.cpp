// The stored form of an output format, JSON in a preference.
#include "media/StoredVideoFormat.h"

#include <gtest/gtest.h>

namespace {
ShotVideoMetadata stored(std::uint32_t uid, Zn::Image::AspectRatio aspect, Zn::Image::ScanMode scan, unsigned short bpc) {
    return ShotVideoMetadata(Zn::DigitalVideoFormats::findByUID(Zn::Image::FormatUID(uid)), Zn::Image::Format("YUY2"), Zn::kFrameRateNone, aspect,
                             true, scan, bpc);
}
} // namespace

TEST(StoredVideoFormat, WritesAspectAsTextAndReadsEveryFieldBack) {
    const ShotVideoMetadata f = stored(14, Zn::Image::kAspect16x9, Zn::Image::kInterlacedUpperFieldFirst, 10);
    const LightweightString<char> text = StoredVideoFormat::write(f);
    EXPECT_NE(text.str().find("\"uid\": \"14\""), std::string::npos) << text.c_str();
    EXPECT_NE(text.str().find("\"ar\": \"16:9\""), std::string::npos) << text.c_str();
    EXPECT_EQ(StoredVideoFormat::read(text), f);
    const ShotVideoMetadata square = stored(4, Zn::Image::kAspect4x3, Zn::Image::kProgressive, 8);
    EXPECT_NE(StoredVideoFormat::write(square).str().find("\"4:3\""), std::string::npos);
    EXPECT_EQ(StoredVideoFormat::read(StoredVideoFormat::write(square)), square);
    for (auto aspect : {Zn::Image::kAspectUnknown, Zn::Image::kAspect1x1}) {
        const LightweightString<char> none = StoredVideoFormat::write(stored(4, aspect, Zn::Image::kProgressive, 8));
        EXPECT_EQ(none.str().find("\"ar\""), std::string::npos);
        EXPECT_EQ(StoredVideoFormat::read(none).getAspectRatio(), Zn::Image::kAspectUnknown);
    }
}

TEST(StoredVideoFormat, MissingOrUnusableMembersReadAsDefaultsAndBadTextAsNoFormat) {
    const ShotVideoMetadata f = StoredVideoFormat::read(R"({"uid": "27", "ar": "21:9"})");
    EXPECT_EQ(f.getBitsPerComponent(), 8);
    EXPECT_EQ(f.getScanMode(), Zn::Image::kProgressive);
    EXPECT_EQ(f.getAspectRatio(), Zn::Image::kAspectUnknown);
    EXPECT_EQ(f.getFrameRate(), Zn::kFrameRate25);
    EXPECT_EQ(StoredVideoFormat::read(R"({"uid": "27", "bpc": 1e300, "sm": -7})"), f);
    EXPECT_EQ(StoredVideoFormat::read(R"({"uid": "27", "bpc": 10.9, "sm": 1})").getBitsPerComponent(), 10);
    for (const char* bad : {"", "{", "[]", R"({"uid": 27})", R"({"uid": "0"})", R"({"uid": "9999"})"})
        EXPECT_EQ(StoredVideoFormat::read(bad).getWidth(), 0) << bad;
}
