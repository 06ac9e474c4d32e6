#include "controls/MenuItem.h"
#include "controls/MenuItemIndex.h"

#include <gtest/gtest.h>

namespace {

std::vector<MenuItem> formatRows() {
    return {MenuItem(UIString(L"High definition"), {}, kMenuItemHeading),
            MenuItem(UIString(L"1080p25")),
            MenuItem(UIString(L"720p50")),
            MenuItem(),
            MenuItem(UIString(L"Standard definition"), {}, kMenuItemHeading),
            MenuItem(UIString(L"PAL||720x576"))};
}

} // namespace

TEST(MenuItemRows, KindsOfRowTellHeadingsAndGapsFromChoices) {
    MenuItem heading(UIString(L"Video"), {}, kMenuItemHeading);
    EXPECT_TRUE(heading.isHeading());
    EXPECT_FALSE(heading.isChoice());
    MenuItem gap;
    EXPECT_TRUE(gap.isGap());
    EXPECT_FALSE(gap.isChoice());
    MenuItem plain(UIString(L"Copy"), WidgetCallback("copy"), kMenuItemPlain);
    EXPECT_TRUE(plain.canBeChosen()) << "any type but a heading is a choice";
    MenuItem styled(UIString(L"Reveal"), {}, kMenuItemCommand);
    EXPECT_TRUE(styled.isChoice());
    styled.setActive(false);
    EXPECT_TRUE(styled.isChoice());
    EXPECT_FALSE(styled.canBeChosen());
    MenuItem onlySide;
    onlySide.setSecondText(UIString(L"Ctrl+C"));
    EXPECT_FALSE(onlySide.isGap()) << "a row with only a second text still shows something";
}

TEST(MenuItemRows, AColumnMarkSplitsTheTextAndTheSecondTextWins) {
    MenuItem disk(UIString(L"Media||(120 GB)"));
    EXPECT_EQ(disk.label(), L"Media");
    EXPECT_EQ(disk.sideText(), L"(120 GB)");
    EXPECT_EQ(disk.displayText(), L"Media (120 GB)");
    disk.setSecondText(UIString(L"F2"));
    EXPECT_EQ(disk.sideText(), L"F2");
    EXPECT_EQ(disk.displayText(), L"Media (120 GB)") << "the second text stays out of a button's display";
    MenuItem plain(UIString(L"No mark | here"));
    EXPECT_EQ(plain.label(), L"No mark | here");
    EXPECT_TRUE(plain.sideText().empty());
    MenuItem markAtEnd(UIString(L"Trailing||"));
    EXPECT_EQ(markAtEnd.label(), L"Trailing");
    EXPECT_TRUE(markAtEnd.sideText().empty());
}

TEST(MenuItemRows, ColoursAndFontAreOnlySetWhenGiven) {
    MenuItem plain(UIString(L"Plain"));
    EXPECT_FALSE(plain.textColour());
    EXPECT_FALSE(plain.background());
    EXPECT_FALSE(plain.font());
    MenuItem coloured(UIString(L"Warm"), {}, Colour(1.0, 0.5, 0.0), Colour(0.1, 0.1, 0.1), kMenuItemSelectable);
    ASSERT_TRUE(coloured.textColour());
    EXPECT_EQ(*coloured.textColour(), Colour(1.0, 0.5, 0.0));
    ASSERT_TRUE(coloured.background());
    EXPECT_EQ(*coloured.background(), Colour(0.1, 0.1, 0.1));
}

TEST(MenuItemIndexes, AnIndexCountsChoicesOnly) {
    auto rows = formatRows();
    EXPECT_EQ(MenuItemIndex().resolve(rows), 0);
    EXPECT_EQ(MenuItemIndex(1).resolve(rows), 1);
    EXPECT_EQ(MenuItemIndex(2).resolve(rows), 2) << "the gap and the second heading are passed over";
    EXPECT_EQ(MenuItemIndex(3).resolve(rows), -1);
    EXPECT_EQ(MenuItemIndex(0xFFFE).resolve(rows), -1);
    EXPECT_EQ(MenuItemIndex(0).resolve({}), -1);
}

TEST(MenuItemIndexes, TheNameDecidesWhenTheIndexIsByName) {
    auto rows = formatRows();
    EXPECT_EQ(MenuItemIndex(L"720p50").resolve(rows), 1);
    EXPECT_EQ(MenuItemIndex(L"PAL").resolve(rows), 2) << "the part before the column mark names the row";
    EXPECT_EQ(MenuItemIndex(L"PAL||720x576").resolve(rows), 2);
    EXPECT_EQ(MenuItemIndex(L"High definition").resolve(rows), -1) << "headings are not choices";
    EXPECT_EQ(MenuItemIndex(L"").resolve(rows), -1);
    EXPECT_EQ(MenuItemIndex(L"NTSC").resolve(rows), -1);
    EXPECT_EQ(MenuItemIndex(L"720p50", 0).resolve(rows), 0) << "with an index other than 0xFFFF the name is ignored";
    EXPECT_TRUE(MenuItemIndex(L"x").byName());
    EXPECT_FALSE(MenuItemIndex(4).byName());
}
