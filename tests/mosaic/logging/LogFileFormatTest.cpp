#include "LoggerTestSupport.h"

#include "logging/LogFileFormat.h"
#include "platform/getSystemLogDirectory.h"
#include "tasks/HyperLink.h"

using LB = LoggerBase;

namespace {

// A log with a row of every kind, a kind past the last, indents, lines and mark-up.
Zn::Ptr<iTaskLog> everyKind() {
    Zn::Ptr<iTaskLog> log(new TaskLog);
    log->write(L"Export of \"Reel 1\" <draft>", LB::otNormal);
    log->write(L"quiet detail", LB::otQuiet);
    log->write(L"3 frames dropped", LB::otWarning);
    log->write(L"Look at this", LB::otEmphasis);
    log->write(L"Disk full", LB::otError);
    log->write(L"Rendering", LB::otStatus);
    log->incIndent();
    log->write(L"first line\n\nthird line", LB::otNormal);
    log->write(L"/media/exports/reel1.mov", LB::otHyperLink);
    log->write(LB::HyperLink({L"/a.mov", L"/b.mov"}, L"Both reels").toString(), LB::otHyperLink);
    log->decIndent();
    log->write(L"Audio", LB::otHeading);
    log->write(L"Summary", LB::otSection);
    log->write(L"All done", LB::otSuccess);
    log->write(L"unknown kind", static_cast<LB::eOutputType>(12));
    log->write(L"", LB::otNormal);
    log->write(L"caf\u00e9 \u2014 <b>bold</b>", LB::otNormal);
    return log;
}

} // namespace

TEST_F(LoggerFixture, SavedTextAndHTMLOfEveryKindMatchTheExpectedFiles) {
    scratch.setEnv("MOSAIC_HOME", dir);
    Zn::Ptr<iTaskLog> log = everyKind();
    Logger::InitArgs a(0, 300, Logger::kProgressOnly);
    a.taskLog = log;
    a.filename = L"every-kind.txt";
    delete new Logger(a);
    EXPECT_EQ(slurp(dir / "logs" / "every-kind.txt"), slurp(MOSAIC_TEST_DATA "/logging/every-kind.txt"));

    std::vector<LB::Item> items;
    log->getItems(items);
    ASSERT_TRUE(LogFileFormat::saveAsHTML(items, path("TaskLog.html")));
    EXPECT_EQ(slurp(dir / "TaskLog.html"), slurp(MOSAIC_TEST_DATA "/logging/every-kind.html"));
}

TEST_F(LoggerFixture, ASaveWhereNothingCanBeWrittenLeavesNoFileBehind) {
    std::ofstream(dir / "blocker") << "a file where a folder should be";
    std::vector<LB::Item> items;
    everyKind()->getItems(items);
    EXPECT_FALSE(LogFileFormat::saveAsHTML(items, path("blocker/TaskLog.html")));
    EXPECT_FALSE(LogFileFormat::saveAsText({LoggedItem(L"x", Colour(), Colour(), {}, LB::otNormal)}, path("blocker/log.txt")));

    scratch.setEnv("MOSAIC_HOME", dir / "blocker");
    Logger::InitArgs a(2, 300, 0);
    a.filename = L"lost.txt";
    auto* l = new Logger(a);
    put(l, L"text that cannot be kept");
    delete l;

    std::vector<std::string> left;
    for (const auto& entry : std::filesystem::directory_iterator(dir)) left.push_back(entry.path().filename().string());
    EXPECT_EQ(left, std::vector<std::string>{"blocker"}) << "no partial or temporary file";
    EXPECT_EQ(slurp(dir / "blocker"), "a file where a folder should be");
}
