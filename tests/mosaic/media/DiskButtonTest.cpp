// The drive drop-down, fed a mount table file of the test's own.
#include "../../toolkit/media/DiskTestSupport.h"
#include "MediaTestSupport.h"
#include "media/TitledDiskButton.h"
#include "platform/ResourceStrings.h"

using namespace MediaTestSupport;
using DiskTest::mountLine;

namespace {

class DiskButtons : public MediaTest {
protected:
    void watch(const std::string& text) {
        table.write(text);
        DiskManager::watch(DiskTest::sources(table, [](const LightweightString<char>& at) { return DiskTest::gigabytes(at == "/" ? 1.5 : 20); }));
        // Space is asked off this thread; it has come when the second row shows it.
        DiskTest::pumpUntil([] { return DiskManager::numVolumes() == 0 || DiskManager::getMediaDrive(0).freeMegabytes.has_value(); });
    }
    void TearDown() override {
        DiskManager::watch(DiskSources{});
        MediaTest::TearDown();
    }
    DiskButton* button() { return host->add<DiskButton>(DiskButton::InitArgs(260, 26)); }
    const std::wstring automatic = resourceStrW(DiskButton::kAutomatic).str();
    DiskTest::TableFile table;
};

} // namespace

TEST_F(DiskButtons, WithNoVolumesOnlyTheAutomaticRowIsOfferedOrNothing) {
    watch("");
    DiskButton* b = button();
    EXPECT_EQ(rowTexts(b), std::vector<std::wstring>{automatic});
    EXPECT_TRUE(b->getCurrentDrive().isAuto());
    b->setAllowAuto(false);
    EXPECT_TRUE(rowTexts(b).empty());
    EXPECT_TRUE(b->getCurrentDrive().isAuto());
    EXPECT_FALSE(b->setCurrentDrive(DriveId('A')));
}

TEST_F(DiskButtons, RowsShowFreeSpaceAndAChosenDriveThatGoesFallsBackToTheAutomaticRow) {
    watch(mountLine(1, "8:1", "/") + mountLine(2, "8:2", "/media/Card\\040B"));
    DiskButton* b = button();
    EXPECT_EQ(rowTexts(b), (std::vector<std::wstring>{L"/||(1.5 GB)", L"Card B||(20 GB)", automatic}));
    EXPECT_TRUE(b->getCurrentDrive().isAuto()) << "the automatic row is chosen first";
    chooseRow(b, 1);
    const DriveId card = DiskManager::get_drive(1);
    EXPECT_EQ(b->getCurrentDrive(), card);
    EXPECT_FALSE(b->setCurrentDrive(DriveId(DriveId::kAuto))) << "the automatic row is not a drive";
    EXPECT_EQ(b->getCurrentDrive(), card);

    b->setAllowAuto(false);
    EXPECT_EQ(b->getCurrentDrive(), card) << "the choice survives the rebuild";
    EXPECT_EQ(b->getItems().size(), 2u);
    b->setAllowAuto(true);

    table.write(mountLine(1, "8:1", "/"));
    ASSERT_TRUE(DiskTest::pumpUntil([&] { return b->getItems().size() == 2; }));
    EXPECT_TRUE(b->getCurrentDrive().isAuto());
    EXPECT_EQ(b->getSelectedItemNameW().str(), automatic);
    ASSERT_TRUE(b->setCurrentDrive(DiskManager::get_drive(0)));
    EXPECT_EQ(b->getSelectedItem(), 0);
}

TEST_F(DiskButtons, AnOpenMenuFollowsAMountAndOnlyTheLocationsMessageRebuilds) {
    watch(mountLine(1, "8:1", "/"));
    DiskButton* b = button();
    ASSERT_TRUE(b->displayMenu());
    table.write(mountLine(1, "8:1", "/") + mountLine(2, "8:5", "/media/usb"));
    ASSERT_TRUE(DiskTest::pumpUntil([&] { return b->getItems().size() == 3; }));
    EXPECT_TRUE(b->isMenuOpen()) << "the new drive shows in the menu that was open";
    EXPECT_EQ(rowTexts(b)[1], L"usb||(20 GB)");

    // Another table, adopted at once; the button hears of it only through the loop.
    DiskManager::watch(DiskTest::sources(table, [](const LightweightString<char>&) { return std::optional<DiskSources::Space>(); }));
    table.write(mountLine(1, "8:1", "/"));
    DiskManager::watch(DiskTest::sources(table, [](const LightweightString<char>&) { return std::optional<DiskSources::Space>(); }));
    b->handleDiskManChange(NotifyMsg("DiskSpaceMsg"));
    EXPECT_EQ(b->getItems().size(), 3u) << "other messages are ignored";
    b->handleDiskManChange(NotifyMsg("medialocationschangemsg"));
    EXPECT_EQ(rowTexts(b), (std::vector<std::wstring>{L"/", automatic})) << "space not yet known shows none";
}

TEST_F(DiskButtons, TheTitledRowPassesOnToItsButton) {
    watch(mountLine(1, "8:1", "/") + mountLine(2, "8:2", "/data"));
    auto* row = host->add<TitledDiskButton>(TitledDiskButton::InitArgs(UIString(L"Media drive"), 420, 30));
    DiskButton* b = row->getButton();
    EXPECT_EQ(b->width(), DiskButton::calcWidth());
    EXPECT_GT(DiskButton::calcWidth(), DropDownMenuButton::calcWidth(std::vector<UIString>{UIString(L"/")}));
    EXPECT_TRUE(row->setCurrentDrive(DiskManager::get_drive(1)));
    EXPECT_EQ(row->getCurrentDrive(), DiskManager::get_drive(1));
    row->setAllowAuto(false);
    EXPECT_EQ(b->getItems().size(), 2u);
    EXPECT_EQ(b->getCurrentDrive(), DiskManager::get_drive(1));
}
