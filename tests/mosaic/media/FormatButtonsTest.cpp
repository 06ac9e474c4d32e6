// The video format, file type and frame rate drop-downs.
#include "MediaTestSupport.h"
#include "media/FrameRateButton.h"
#include "media/ShotVideoMetadataButton.h"
#include "media/TitledFileFormatButton.h"
#include "media/ZnExport.h"
#include "platform/EditorPreferences.h"
#include "platform/ResourceStrings.h"

using namespace MediaTestSupport;
using Groups = Zn::DigitalVideoFormats::FormatGroups;

namespace {

class FormatButtons : public MediaTest {
protected:
    ShotVideoMetadataButton* formatButton(const std::set<ShotVideoMetadata>& formats) {
        return host->add<ShotVideoMetadataButton>(ShotVideoMetadataButton::InitArgs(formats, 220, 26));
    }
};

} // namespace

TEST_F(FormatButtons, GroupsFormatsUnderHeadingsInFamilyOrderAndRowsByHeight) {
    // 1080p 25, 720p 25, 576i 50, 486i, 480i, 480p, 2K 24, 720p 50.
    auto* b = formatButton(
        {tableFormat(27), tableFormat(28), tableFormat(4), tableFormat(1), tableFormat(2), tableFormat(3), tableFormat(31), tableFormat(11)});
    const std::wstring sd = resourceStrW(ShotVideoMetadataButton::kStandardDefinitionHeading).str();
    auto heading = [](Groups::FormatGroup g) { return Zn::getDisplayString(g).str(); };
    const std::vector<std::wstring> expected{sd,          L"480i 59.94",           L"480p 59.94", L"486i 59.94", sd,
                                             L"576i 50",  heading(Groups::kHD720), L"720p 25",    L"720p 50",    heading(Groups::kHD1080),
                                             L"1080p 25", heading(Groups::k2K),    L"2K 24"};
    const std::vector<std::wstring> texts = rowTexts(b);
    ASSERT_EQ(texts.size(), expected.size());
    // Rows of equal height may stand in either order.
    for (std::size_t i : {0, 3, 4, 5, 6, 9, 10, 11, 12}) EXPECT_EQ(texts[i], expected[i]) << i;
    EXPECT_EQ(b->getItems()[1].secondText().getString(), L"720x480");
    EXPECT_EQ(b->getItems()[3].secondText().getString(), L"720x486");
    EXPECT_TRUE(b->getItems()[4].isHeading());
    ASSERT_EQ(b->getFormats().size(), 8u);
    EXPECT_EQ(b->getFormats()[3], tableFormat(4)) << "formats stand in menu order, headings left out";
    EXPECT_EQ(b->getSelectedFormat(), b->getFormats()[0]);

    b->setFormats({tableFormat(14)}, tableFormat(14));
    EXPECT_EQ(rowTexts(b), (std::vector<std::wstring>{heading(Groups::kHD1080), L"1080i 50"})) << "a lone group keeps its heading";
    b->setFormats({}, ShotVideoMetadata());
    EXPECT_TRUE(b->getItems().empty());
    EXPECT_EQ(b->getSelectedFormat(), ShotVideoMetadata()) << "an empty button reads as no format";
}

TEST_F(FormatButtons, SelectsTheRowEqualToAFormatAndTheSecondArgumentOfSetFormatsSelectsNothing) {
    auto* b = formatButton({});
    b->setFormats({tableFormat(27), tableFormat(28), tableFormat(4)}, tableFormat(27));
    EXPECT_EQ(b->getSelectedFormat(), tableFormat(4));
    EXPECT_TRUE(b->setSelectedFormat(tableFormat(27)));
    EXPECT_EQ(b->getSelectedFormat(), tableFormat(27));
    EXPECT_EQ(b->getSelectedItemNameW(), L"1080p 25");
    EXPECT_FALSE(b->setSelectedFormat(tableFormat(14)));
    EXPECT_EQ(b->getSelectedFormat(), tableFormat(27));
}

TEST_F(FormatButtons, TheOpenMenuPaintsSizesBesideFormatsAndNotBesideHeadings) {
    auto* b = formatButton({tableFormat(27), tableFormat(4)});
    TestKit::click(TestKit::centreOf(b));
    Menu* m = b->getMenu();
    ASSERT_NE(m, nullptr);
    const std::uint32_t back = TestKit::argb(m->getPalette().window());
    auto rightInk = [&](int row) {
        const BoxInt r = m->rowBox(row);
        return TestKit::inkPixels(m, BoxInt(r.x2 - 60, r.y1, r.x2 - 2, r.y2), back);
    };
    EXPECT_EQ(rightInk(0), 0);
    EXPECT_GT(rightInk(1), 20);
    EXPECT_GT(rightInk(3), 20);
}

TEST_F(FormatButtons, FileTypeMatchesTheStoredExtensionInAnyCaseAndStoresTheUsersChoice) {
    prefs().setPreference("export type", LightweightString<wchar_t>(L"mov"));
    auto* b = host->add<FileFormatButton>(FileFormatButton::InitArgs(Compression::eExport, "export type", 120, 26));
    EXPECT_EQ(b->getSelectedItemNameW(), L"MOV");
    EXPECT_EQ(b->getFileType(), "mov");
    EXPECT_TRUE(host->messages.empty());
    chooseRow(b, 0);
    EXPECT_EQ(host->count(FileFormatButton::FileTypeChangedMsg), 1);
    EXPECT_EQ(prefs().getPreference("export type", LightweightString<wchar_t>()), b->getItems()[0].text().getString());

    prefs().setPreference("capture type", LightweightString<wchar_t>(L"XYZ"));
    auto* unmatched = host->add<FileFormatButton>(FileFormatButton::InitArgs(Compression::eCapture, "capture type", 120, 26));
    EXPECT_EQ(unmatched->getSelectedItem(), 0);
    EXPECT_EQ(prefs().getPreference("capture type", LightweightString<wchar_t>()), L"XYZ") << "left alone until the user chooses";
}

TEST_F(FormatButtons, AFileTypeWithNoKeyStoresNothingAndTheTitledOneTellsItsOwner) {
    auto* row = host->add<TitledFileFormatButton>(TitledFileFormatButtonInitArgs(Compression::eRender, {}, 0, 300, 30));
    FileFormatButton* b = row->getButton();
    EXPECT_EQ(b->getSelectedItemNameW(), L"MOV") << "with nothing stored, the default type, which rendering offers";
    EXPECT_EQ(b->getX() + b->width(), row->width());
    chooseRow(b, 1);
    EXPECT_EQ(host->count(FileFormatButton::FileTypeChangedMsg), 1);
    EXPECT_EQ(host->senders.back(), b);
    EXPECT_EQ(b->getFileType(), ZnExport::getFormatIDForExtension(b->getSelectedItemNameW()));
}

TEST_F(FormatButtons, EveryFrameRateRoundTripsThroughItsRowAndAnUnlistedOneChangesNothing) {
    std::vector<Zn::FrameRate> all;
    Zn::getFrameRates(Zn::FrameRateGroups::kAllRates, all);
    auto* b = host->add<FrameRateButton>(FrameRateButton::InitArgs(all, 300, 30));
    EXPECT_EQ(b->getSelectedFrameRate(), all.front());
    for (Zn::FrameRate r : all) {
        b->setFrameRate(r);
        EXPECT_EQ(b->getSelectedFrameRate(), r);
    }
    auto* video = new FrameRateButton(300, 30, host->getPalette(), host->canvas());
    host->addChild(video, Glob::UserBottomLeft(20, 80));
    video->setFrameRate(Zn::kFrameRate50);
    video->setFrameRate(Zn::kFrameRate120);
    EXPECT_EQ(video->getSelectedFrameRate(), Zn::kFrameRate50);
    EXPECT_EQ(video->getBtn()->getItems().size(), 8u);
}
