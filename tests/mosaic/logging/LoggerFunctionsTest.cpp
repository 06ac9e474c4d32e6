#include "LoggerTestSupport.h"

#include "draw/Screen.h"
#include "platform/TextFile.h"
#include "platform/getSystemLogDirectory.h"

#include <fstream>

using LB = LoggerBase;

TEST_F(LoggerFixture, FreeFunctionsWriteTheirKindsAndIgnoreDeadOrForeignPointers) {
    Logger* l = make();
    logger_write(l, "%d frames", 25);
    logger_error(l, "missing %s", "clip.mov");
    logger_warning(l, "%.1f%% dropped", 2.5);
    logger_status_line(l, "Done");
    loggerWrite(l, L"raw %d", LB::otSuccess);
    TestKit::pump();
    EXPECT_EQ(texts(l), (std::vector<std::wstring>{L"25 frames", L"missing clip.mov", L"2.5% dropped", L" ", L"Done", L"raw %d"}));
    const LB::eOutputType kinds[] = {LB::otNormal, LB::otError, LB::otWarning, LB::otNormal, LB::otStatus, LB::otSuccess};
    for (std::size_t i = 0; i < std::size(kinds); ++i) EXPECT_EQ(l->rows()[i].type, kinds[i]);
    logger_set_new_title(l, L"Export log");
    EXPECT_EQ(l->getTitle().getString(), L"Export log");
    logger_setFont(l, "DejaVu Sans Mono", Colour(1.0, 0.0, 0.0));
    EXPECT_EQ(l->getFont().name, LightweightString<char>("DejaVu Sans Mono"));

    StandardPanel::InitArgs other(100, 100);
    auto* panel = new StandardPanel(other);
    logger_write(reinterpret_cast<Logger*>(panel), "not a logger");
    delete panel;
    Logger* dead = make();
    delete dead;
    logger_write(dead, "gone");
    logger_error(nullptr, "nothing");
    logger_display_progress(dead, 0.5);
    logger_set_new_title(dead, L"x");
    TestKit::pump();
    EXPECT_EQ(l->rowCount(), 6) << "nothing reached a live logger by a wrong pointer";
}

TEST_F(LoggerFixture, FormattedMessagesFitIn1024BytesAndLongerOnesAreCut) {
    Logger* l = make();
    std::string fits(1023, 'x'), over(1500, 'y');
    logger_write(l, "%s", fits.c_str());
    logger_write(l, "%s", over.c_str());
    logger_write(l, "%s%s", std::string(1022, 'z').c_str(), "\xc3\xa9");
    TestKit::pump();
    ASSERT_EQ(l->rowCount(), 3);
    EXPECT_EQ(l->rows()[0].text.size(), 1023u) << "1,023 characters is the longest";
    EXPECT_EQ(l->rows()[1].text.size(), 1023u) << "a longer message keeps what fits";
    EXPECT_EQ(l->rows()[2].text.size(), 1022u) << "and never half a character";
}

TEST_F(LoggerFixture, MakeLoggerCentresForANegativeXAndPlacesOtherwise) {
    const Screen& screen = GlobManager::instance().screen();
    Logger* centred = make_logger(L"Centred", false, L"ignored.txt", false, 10, 400, -1, 900);
    ASSERT_TRUE(is_good_logger_ptr(centred));
    EXPECT_TRUE(GlobManager::instance().isRealized(centred));
    EXPECT_NEAR(centred->getX() + centred->width() / 2, screen.width() / 2, 2);
    EXPECT_NEAR(centred->getY() + centred->height() / 2, screen.height() / 2, 2) << "y is ignored when centring";
    EXPECT_EQ(centred->getTitle().getString(), L"Centred");
    EXPECT_TRUE(centred->autoSavePath().empty()) << "the file name is not used";
    EXPECT_EQ(centred->gauge(), nullptr);

    Logger* placed = make_logger(L"Placed", true, L"", true, 6, 0, 50, 60);
    EXPECT_EQ(placed->getX(), 50);
    EXPECT_EQ(placed->getY(), 60);
    EXPECT_EQ(placed->width(), 30 * row) << "width 0 is 30 rows";
    EXPECT_NE(placed->gauge(), nullptr);
    EXPECT_EQ(placed->height(), Logger::getInitialHeight(6, 0)) << "the gauge's row is not counted";
    EXPECT_GT(Logger::getInitialHeight(6, Logger::kShowProgress), Logger::getInitialHeight(6, 0));
}

TEST_F(LoggerFixture, OnlyInitArgsFilenameSavesAtCloseAndTheOwnerHearsOfTheEnd) {
    scratch.setEnv("MOSAIC_HOME", dir);
    LightweightString<wchar_t> logs = getSystemLogDirectory();
    ASSERT_FALSE(fileExists(logs));

    Logger* noFile = make();
    noFile->setFilename(L"nope.txt");
    noFile->setFilename(L"nope.txt", L"either.txt");
    LightweightString<wchar_t> name;
    noFile->getFilename(name);
    EXPECT_TRUE(name.empty());
    put(noFile, L"kept nowhere");
    delete noFile;
    EXPECT_FALSE(fileExists(logs)) << "setFilename changes nothing";

    Logger::InitArgs a(4, 300, 0);
    a.filename = L"render.txt";
    auto* l = new Logger(a);
    StandardPanel::InitArgs hostArgs(50, 50);
    struct Listener : StandardPanel {
        using StandardPanel::StandardPanel;
        int handleMessageEvent(const LightweightString<char>& m, Glob* s) override {
            heard.push_back(m.str());
            return StandardPanel::handleMessageEvent(m, s);
        }
        std::vector<std::string> heard;
    };
    auto* listener = new Listener(hostArgs);
    l->setDieTarget(listener);
    put(l, L"line one\nline two");
    delete l;
    TestKit::pump();
    TextFile saved(joinPaths(logs, L"render.txt"));
    ASSERT_GE(saved.size(), 2u);
    EXPECT_EQ(saved.lines()[0], LightweightString<char>("line one"));
    EXPECT_EQ(saved.lines()[1], LightweightString<char>("line two"));
    for (std::size_t i = 2; i < saved.size(); ++i) EXPECT_TRUE(saved.lines()[i].empty()) << "blank rows are saved as blank lines";
    EXPECT_EQ(listener->heard, std::vector<std::string>{Logger::kDiedMsg});
    delete listener;
}

TEST_F(LoggerFixture, ButtonsLieRightToLeftByDefaultAndKeepTheTableClearOfThem) {
    Logger::InitArgs a(6, 400, 0);
    for (const wchar_t* label : {L"Stop", L"Pause"}) a.buttons.emplace_back(UIString(label), WidgetCallback(), 80, 24);
    auto* l = new Logger(a);
    TestKit::Owned<Logger> owned(l);
    std::vector<PushButton*> buttons;
    for (Glob* c : l->getChildren())
        if (auto* b = dynamic_cast<PushButton*>(c)) buttons.push_back(b);
    ASSERT_EQ(buttons.size(), 2u);
    Glob* pause = buttons[0]->getLabel().getString() == L"Pause" ? buttons[0] : buttons[1];
    Glob* stop = pause == buttons[0] ? buttons[1] : buttons[0];
    EXPECT_GT(pause->getX(), stop->getX()) << "from the right, the last button first";
    EXPECT_GE(l->table()->getY(), pause->getY() + pause->height()) << "the table stays above the buttons";
    l->setButtonActive(0, false, kNoRedraw);
    EXPECT_FALSE(pause->isActive()) << "index 0 is the last button";
    EXPECT_TRUE(stop->isActive());
    l->setButtonActive(7, false, kNoRedraw);
    EXPECT_TRUE(stop->isActive()) << "an index past the buttons changes none";
}

TEST_F(LoggerFixture, FlagsLeaveOutTheCloseBoxOrTheGripAndCanForbidResizing) {
    const int full = StandardPanel::kTitleBar | StandardPanel::kCloseBox | StandardPanel::kResizeGrip;
    Logger* plain = make();
    EXPECT_EQ(plain->standardWidgets(), full);
    EXPECT_TRUE(plain->isMovable());
    EXPECT_TRUE(plain->isResizable());
    EXPECT_EQ(make(Logger::kNoCloseBox)->standardWidgets(), full & ~StandardPanel::kCloseBox);
    Logger* gripless = make(Logger::kNoResizeGrip);
    EXPECT_EQ(gripless->standardWidgets(), full & ~StandardPanel::kResizeGrip);
    EXPECT_FALSE(gripless->isResizable());
    EXPECT_FALSE(make(Logger::kNotResizable)->isResizable()) << "even with its grip";
}
