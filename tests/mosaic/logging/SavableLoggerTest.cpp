#include "LoggerTestSupport.h"

#include "logging/SavableLogger.h"
#include "platform/CommandRegistrar.h"
#include "platform/TextFile.h"
#include "tasks/HyperLink.h"

using LB = LoggerBase;

namespace {

std::vector<Logger*> loggersOnScreen() {
    std::vector<Logger*> out;
    for (Glob* g : GlobManager::instance().roots())
        if (is_good_logger_ptr(g)) out.push_back(static_cast<Logger*>(g));
    return out;
}

} // namespace

TEST_F(LoggerFixture, ShowLogOpensASavableLoggerThatWritesTheWholeLogAsHTML) {
    scratch.setEnv("HOME", dir);
    EXPECT_TRUE(CommandRegistrar::exists("ShowLog"));
    std::size_t before = GlobManager::instance().roots().size();
    CommandRegistrar::invoke("ShowLog", {});
    EXPECT_EQ(GlobManager::instance().roots().size(), before) << "a null log opens nothing";

    Zn::Ptr<iTaskLog> log(new TaskLog);
    log->write(L"Rendering", LB::otStatus);
    log->write(L"<b>bold</b> & more", LB::otNormal);
    log->write(L"Disk full", LB::otError);
    CommandRegistrar::invoke("ShowLog", Zn::Ptr<iObject>(log));
    TestKit::pump();
    auto shown = loggersOnScreen();
    ASSERT_EQ(shown.size(), 1u);
    auto* panel = dynamic_cast<SavableLogger*>(shown[0]);
    ASSERT_NE(panel, nullptr);
    EXPECT_TRUE(panel->isIndestructible());
    EXPECT_EQ(panel->rowCount(), 3) << "the log is replayed; a status line first has no blank row";
    EXPECT_EQ(panel->width(), 30 * row);

    PushButton* save = nullptr;
    for (Glob* c : panel->getChildren())
        if (auto* b = dynamic_cast<PushButton*>(c)) save = b;
    ASSERT_NE(save, nullptr);
    EXPECT_EQ(save->getLabel().getString(), ellipsisResourceStrW(307));
    TestKit::click(save);
    FileBrowser* chooser = panel->chooser();
    ASSERT_NE(chooser, nullptr) << "the save button asks for a folder";
    panel->chooseFolder();
    EXPECT_EQ(panel->chooser(), chooser) << "one chooser at a time";

    panel->saveToChosenFolder(NotifyMsg());
    TestKit::pump();
    EXPECT_EQ(panel->lastSavedPath(), path("TaskLog.html"));
    EXPECT_EQ(slurp(dir / "TaskLog.html"), "<pre>\n\n<b>Rendering</b>\n<b>bold</b> & more\n<font color=\"#ff0000\">Disk full</font>\n</pre>\n");
    EXPECT_EQ(panel->chooser(), nullptr) << "the chooser goes once the log is saved";
    panel->chooseFolder();
    panel->saveToChosenFolder(NotifyMsg());
    EXPECT_EQ(panel->lastSavedPath(), path("TaskLog_2.html")) << "an earlier file is never overwritten";
    panel->setIndestructible(false);
}

TEST_F(LoggerFixture, SaveToFileWritesEveryRowAsTextAndShowsALinkToTheFile) {
    scratch.setEnv("HOME", dir);
    Logger* l = make(0, {}, 4, 300);
    put(l, L"one\ntwo");
    put(l, L"/media/clip.mov", LB::otHyperLink);
    l->saveToFile(NotifyMsg());
    TestKit::pump();
    TextFile saved(path("log.txt"));
    ASSERT_GE(saved.size(), 3u);
    EXPECT_EQ(saved.lines()[0], LightweightString<char>("one"));
    EXPECT_EQ(saved.lines()[2], LightweightString<char>("/media/clip.mov")) << "a link writes its raw string";
    EXPECT_EQ(saved.size(), l->getSize()) << "blank rows included";

    auto shown = loggersOnScreen();
    ASSERT_EQ(shown.size(), 2u);
    Logger* note = shown[0] == l ? shown[1] : shown[0];
    ASSERT_EQ(note->rowCount(), 1);
    EXPECT_EQ(note->rows()[0].type, LB::otHyperLink);
    EXPECT_EQ(note->rows()[0].text, path("log.txt"));
    EXPECT_TRUE(GlobManager::instance().isModal(note));
    EXPECT_EQ(GlobManager::instance().roots().back(), note) << "it comes up on top";
    GlobManager::instance().removeModalGlob(note);
    l->saveToFile(NotifyMsg());
    EXPECT_TRUE(fileExists(path("log_2.txt")));
}
