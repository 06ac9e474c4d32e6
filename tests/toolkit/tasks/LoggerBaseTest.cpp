#include "tasks/LoggerBase.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace {

// Counts what reaches the overridable operations, as a panel would.
class CountingLogger : public LoggerBase {
public:
    void write(const LightweightString<wchar_t>& text, eOutputType type) override {
        lastText = text;
        lastType = type;
        lastIndent = indentLevel();
    }
    void handleProgressUpdate(const ProgressSnapshot& s) override { fractions.push_back(s.fraction); }
    LightweightString<wchar_t> lastText;
    eOutputType lastType = otQuiet;
    unsigned short lastIndent = 0;
    std::vector<float> fractions;
};

} // namespace

TEST(LoggerBase, ABareLoggerLosesTextAndHasNoFile) {
    LoggerBase base;
    base.write(L"lost", LoggerBase::otError);
    base.setFilename(L"a.txt");
    base.setFilename(L"a.txt", L"b.txt");
    LightweightString<wchar_t> name(L"left over");
    base.getFilename(name);
    EXPECT_TRUE(name.empty());
    base.updateProgress(0.5, L"nobody listens"); // nothing to show it, and no harm
}

TEST(LoggerBase, OverridesSeeTheWritesTheIndentAndTheProgress) {
    CountingLogger logger;
    LoggerBase& asBase = logger;
    asBase.incIndent();
    asBase.write(L"deep", LoggerBase::otSuccess);
    EXPECT_EQ(logger.lastText, L"deep");
    EXPECT_EQ(logger.lastType, LoggerBase::otSuccess);
    EXPECT_EQ(logger.lastIndent, 1);
    asBase.updateProgress(0.5, L"half");
    ASSERT_EQ(logger.fractions.size(), 1u);
    EXPECT_FLOAT_EQ(logger.fractions[0], 0.5f);
}

TEST(LoggerBase, TheIndentLevelStaysInRangeUnderConcurrentChanges) {
    LoggerBase logger;
    logger.decIndent();
    EXPECT_EQ(logger.indentLevel(), 0);
    logger.setIndentLevel(0xFFFF);
    logger.incIndent();
    EXPECT_EQ(logger.indentLevel(), 0xFFFF);
    logger.setIndentLevel(0);
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&logger] {
            for (int i = 0; i < 1000; ++i) logger.incIndent();
        });
    for (auto& t : threads) t.join();
    EXPECT_EQ(logger.indentLevel(), 4000);
}

TEST(LoggerBase, AnItemCopiesItsFieldsAndStartsWithNoOwners) {
    Zn::Ptr<LoggerBase::Item> owned(new LoggerBase::Item(L"text", LoggerBase::otHyperLink, 3));
    LoggerBase::Item copy = *owned;
    EXPECT_EQ(copy.text, L"text");
    EXPECT_EQ(copy.type, LoggerBase::otHyperLink);
    EXPECT_EQ(copy.indent, 3);
    EXPECT_EQ(copy.refCount(), 0) << "a copy is not owned by the original's pointers";
    EXPECT_EQ(owned->refCount(), 1);
    LoggerBase::Item blank;
    EXPECT_TRUE(blank.text.empty());
    EXPECT_EQ(blank.type, LoggerBase::otNormal);
}
