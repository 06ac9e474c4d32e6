#include "controls/MenuData.h"
#include "MenusTestSupport.h"
#include "controls/MessageBase.h"
#include "glob/Messaging.h"
#include "platform/CommandRegistrar.h"

#include <string>

namespace {

// A panel whose menu is a MenuData, and which keeps the last change it heard.
class Chooser : public MessageBase {
public:
    explicit Chooser(const InitArgs& a) : MessageBase(a) {
        addHandler("size", [this](const NotifyMsg& m) {
            change = m.dataAs<MenuData::Change>();
            return 1;
        });
        addHandler("plain", [this](const NotifyMsg&) { return ++plain; });
    }
    void reviewMenu(const Event*) override {
        clearMenu();
        MenuData data;
        data.add({UIString(L"Size"), "size", {UIString(L"Small"), UIString(L"Large")}, 1});
        data.addYesNo(UIString(L"Shadow"), "shadow", false);
        for (const MenuItem& item : data.items()) addMenuItem(item);
    }
    Zn::Ptr<MenuData::Change> change;
    int plain = 0;
};

class MenuDatas : public MenusTest {};

} // namespace

TEST_F(MenuDatas, EachEntryIsAHeadingOverItsValuesWithThePresentOneTicked) {
    MenuData data;
    data.addYesNo(UIString(L"Visible"), "vis", true);
    const std::vector<MenuItem> rows = data.items();
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_TRUE(rows[0].isHeading());
    EXPECT_EQ(rows[1].label().str(), L"Yes");
    EXPECT_FALSE(rows[1].secondText().empty()) << "ticked";
    EXPECT_TRUE(rows[2].secondText().empty());
    EXPECT_TRUE(MenuData().items().empty());
}

TEST_F(MenuDatas, AChosenValueReachesTheOwnersHandlerWithItsChange) {
    StandardPanel::InitArgs a(200, 120);
    auto* p = add<Chooser>(a, {150, 40});
    TestKit::click(TestKit::screenPointOf(p, {60, 50}), Event::kRight);
    Menu* m = p->getOpenMenu();
    ASSERT_NE(m, nullptr);
    ASSERT_TRUE(m->choose(1));
    TestKit::pump();
    ASSERT_TRUE(p->change);
    EXPECT_EQ(p->change->value.str(), L"Small");
    EXPECT_EQ(p->change->index, 0);
    EXPECT_TRUE(p->change->on);

    sendMessage("plain", p);
    sendMessage("unknown", p);
    TestKit::pump();
    EXPECT_EQ(p->plain, 1) << "named messages reach their handler, others the panel";
}

TEST(CommandFlags, AreKeptWithTheCommandAndEmptyForAnUnknownOne) {
    CommandRegistrar::add(
        "flagged test command", [](const Zn::Ptr<iObject>&) {}, 6, "Tests");
    EXPECT_EQ(CommandRegistrar::flags("flagged test command"), 6);
    EXPECT_EQ(CommandRegistrar::group("flagged test command").str(), "Tests");
    EXPECT_EQ(CommandRegistrar::flags("no such command"), 0);
    EXPECT_TRUE(CommandRegistrar::group("no such command").empty());
}
