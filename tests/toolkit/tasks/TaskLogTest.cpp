#include "tasks/TaskLog.h"
#include "controls/StandardPanel.h"
#include "core/FunctionCallback.h"
#include "testing/TestKit.h"
#include "value/UIThreadCallback.h"

#include <gtest/gtest.h>

#include <atomic>
#include <mutex>
#include <string>
#include <thread>

namespace {

using Item = LoggerBase::Item;
using Callback = Zn::Ptr<iCallbackBase<int, NotifyMsg>>;

constexpr int kWriters = 4;
constexpr int kItemsPerWriter = 10000;

LightweightString<wchar_t> itemText(int writer, int n) { return LightweightString<wchar_t>(std::to_wstring(writer) + L":" + std::to_wstring(n)); }

// Writer and sequence number back out of an item's text.
std::pair<int, int> parseItem(const LightweightString<wchar_t>& text) {
    std::wstring s = text.str();
    std::size_t colon = s.find(L':');
    if (colon == std::wstring::npos) return {-1, -1};
    return {std::stoi(s.substr(0, colon)), std::stoi(s.substr(colon + 1))};
}

// Collects what it hears, from whichever thread delivers it.
class Collector {
public:
    Callback callback() {
        return Callback(new FunctionCallback<NotifyMsg, int>(std::function<int(const NotifyMsg&)>([this](const NotifyMsg& m) { return hear(m); })));
    }
    int hear(const NotifyMsg& m) {
        std::lock_guard<std::mutex> g(lock_);
        names_.push_back(m.name());
        if (auto item = m.dataAs<Item>()) items_.push_back(*item);
        if (auto p = m.dataAs<ProgressSnapshot>()) fractions_.push_back(p->fraction);
        return 1;
    }
    std::vector<Item> items() const {
        std::lock_guard<std::mutex> g(lock_);
        return items_;
    }
    std::vector<float> fractions() const {
        std::lock_guard<std::mutex> g(lock_);
        return fractions_;
    }
    std::size_t heard() const {
        std::lock_guard<std::mutex> g(lock_);
        return names_.size();
    }

private:
    mutable std::mutex lock_;
    std::vector<LightweightString<char>> names_;
    std::vector<Item> items_;
    std::vector<float> fractions_;
};

void writeConcurrently(TaskLog& log, int writers = kWriters, int perWriter = kItemsPerWriter) {
    std::vector<std::thread> threads;
    for (int w = 0; w < writers; ++w)
        threads.emplace_back([&log, w, perWriter] {
            for (int n = 0; n < perWriter; ++n) log.write(itemText(w, n), LoggerBase::otNormal);
        });
    for (auto& t : threads) t.join();
}

// Each writer's items appear exactly once and in the order that writer wrote them.
::testing::AssertionResult eachWriterInOrder(const std::vector<Item>& items, int writers = kWriters, int perWriter = kItemsPerWriter) {
    std::vector<int> next(static_cast<std::size_t>(writers), 0);
    for (const Item& item : items) {
        auto [w, n] = parseItem(item.text);
        if (w < 0 || w >= writers) return ::testing::AssertionFailure() << "unknown item " << item.text;
        if (n != next[static_cast<std::size_t>(w)])
            return ::testing::AssertionFailure() << "writer " << w << ": expected item " << next[static_cast<std::size_t>(w)] << ", got " << n;
        ++next[static_cast<std::size_t>(w)];
    }
    for (int w = 0; w < writers; ++w)
        if (next[static_cast<std::size_t>(w)] != perWriter)
            return ::testing::AssertionFailure() << "writer " << w << " delivered " << next[static_cast<std::size_t>(w)] << " items";
    return ::testing::AssertionSuccess();
}

// A panel on the UI thread that hears the log through a deferred callback.
class LogPanel : public StandardPanel {
public:
    LogPanel() : StandardPanel(10, 10) {}
    int onItem(const NotifyMsg& m) {
        if (co_pid() != 0) ++offThread;
        if (auto item = m.dataAs<Item>()) items.push_back(*item);
        return 0;
    }
    std::vector<Item> items;
    int offThread = 0;
};

class TaskLogs : public TestKit::ScreenTest {};

} // namespace

TEST_F(TaskLogs, FourWritersTenThousandItemsEachReachAListenerOnceAndInEachWritersOrder) {
    Zn::Ptr<TaskLog> log(new TaskLog);
    Collector collector;
    auto guard = log->registerInterest(collector.callback(), iTaskLog::kItemsInterest);
    ASSERT_TRUE(guard);
    writeConcurrently(*log);

    std::vector<Item> heard = collector.items();
    ASSERT_EQ(heard.size(), std::size_t(kWriters * kItemsPerWriter));
    EXPECT_TRUE(eachWriterInOrder(heard));
    // The log holds the items in the very order they were told.
    std::vector<Item> held;
    log->getItems(held);
    ASSERT_EQ(held.size(), heard.size());
    for (std::size_t i = 0; i < held.size(); ++i) ASSERT_EQ(held[i].text, heard[i].text) << "at " << i;
}

TEST_F(TaskLogs, AUIThreadListenerGetsEveryItemOnTheUIThreadThroughADeferredCallback) {
    Zn::Ptr<TaskLog> log(new TaskLog);
    LogPanel panel;
    auto guard = log->registerInterest(makeDeferredCallback(&panel, &LogPanel::onItem), iTaskLog::kItemsInterest);
    writeConcurrently(*log, kWriters, 2500);
    log->write(L"from the UI thread", LoggerBase::otWarning);
    EXPECT_TRUE(panel.items.empty()) << "always deferred, never called on the writing thread";
    TestKit::pump();
    ASSERT_EQ(panel.items.size(), std::size_t(kWriters * 2500 + 1));
    EXPECT_EQ(panel.offThread, 0);
    EXPECT_EQ(panel.items.back().text, L"from the UI thread");
    EXPECT_EQ(panel.items.back().type, LoggerBase::otWarning);
    panel.items.pop_back();
    EXPECT_TRUE(eachWriterInOrder(panel.items, kWriters, 2500));
}

TEST_F(TaskLogs, ALateListenerReplaysWhatWasWrittenBeforeAndHearsTheRest) {
    Zn::Ptr<TaskLog> log(new TaskLog);
    log->write(L"first", LoggerBase::otNormal);
    log->write(L"second", LoggerBase::otError);
    std::vector<Item> replay;
    log->getItems(replay);
    ASSERT_EQ(replay.size(), 2u);
    EXPECT_EQ(replay[0].text, L"first");
    EXPECT_EQ(replay[1].type, LoggerBase::otError);

    Collector collector;
    auto guard = log->registerInterest(collector.callback(), iTaskLog::kItemsInterest);
    log->write(L"third", LoggerBase::otNormal);
    ASSERT_EQ(collector.items().size(), 1u) << "registration does not replay by itself";
    EXPECT_EQ(collector.items()[0].text, L"third");
    replay.clear();
    log->getItems(replay);
    EXPECT_EQ(replay.size(), 3u);
}

TEST_F(TaskLogs, ReplayAndRegistrationInOneStepNeitherOverlapNorLeaveAGapWhileWritersRun) {
    Zn::Ptr<TaskLog> log(new TaskLog);
    std::atomic<bool> started{false};
    std::thread writers([&] {
        started = true;
        writeConcurrently(*log);
    });
    while (!started || log->numItems() < 1000) std::this_thread::yield();
    Collector collector;
    std::vector<Item> replay;
    auto guard = log->registerInterest(collector.callback(), iTaskLog::kItemsInterest, replay);
    writers.join();

    EXPECT_FALSE(replay.empty());
    std::vector<Item> all = replay;
    for (const Item& i : collector.items()) all.push_back(i);
    EXPECT_TRUE(eachWriterInOrder(all));
}

TEST_F(TaskLogs, ReleasingTheGuardStopsDeliveryEvenWhileWritersRun) {
    Zn::Ptr<TaskLog> log(new TaskLog);
    Collector quiet, stays;
    auto released = log->registerInterest(quiet.callback(), iTaskLog::kItemsInterest);
    auto kept = log->registerInterest(stays.callback(), iTaskLog::kItemsInterest);
    log->write(L"heard by both", LoggerBase::otNormal);
    released->release();
    log->write(L"heard by one", LoggerBase::otNormal);
    EXPECT_EQ(quiet.heard(), 1u);
    EXPECT_EQ(stays.heard(), 2u);

    Collector late;
    auto guard = log->registerInterest(late.callback(), iTaskLog::kItemsInterest);
    std::thread writers([&] { writeConcurrently(*log, 2, 5000); });
    while (late.heard() < 100) std::this_thread::yield();
    guard.reset(); // the last copy of the guard ends the registration
    std::size_t atRelease = late.heard();
    writers.join();
    EXPECT_EQ(late.heard(), atRelease) << "nothing starts after the release has returned";
    EXPECT_LT(atRelease, 10000u);
    EXPECT_EQ(stays.heard(), 10002u);
}

TEST_F(TaskLogs, ProgressAndItemsGoToTheirOwnListeners) {
    Zn::Ptr<TaskLog> log(new TaskLog);
    Collector items, progress;
    auto g1 = log->registerInterest(items.callback(), iTaskLog::kItemsInterest);
    auto g2 = log->registerInterest(progress.callback(), iTaskLog::kProgressInterest);
    log->write(L"item", LoggerBase::otNormal);
    log->updateProgress(0.25, L"quarter");
    log->startSubTasks(2);
    log->nextSubTask();
    log->updateProgress(0.5, L"three quarters");
    EXPECT_EQ(items.heard(), 1u);
    EXPECT_TRUE(items.fractions().empty());
    EXPECT_TRUE(progress.items().empty());
    std::vector<float> expected{0.25f, 0.5f, 0.75f};
    EXPECT_EQ(progress.fractions(), expected);
}

TEST_F(TaskLogs, ItemsKeepTheirKindAndTheIndentLevelAtTheTimeOfWriting) {
    Zn::Ptr<TaskLog> log(new TaskLog);
    log->incIndent();
    log->incIndent();
    log->write(L"deep", LoggerBase::otHeading);
    log->decIndent();
    log->write(L"less", static_cast<LoggerBase::eOutputType>(42));
    log->setIndentLevel(0);
    log->decIndent();
    log->write(L"", LoggerBase::otNormal);
    std::vector<Item> items;
    log->getItems(items);
    ASSERT_EQ(items.size(), 3u);
    EXPECT_EQ(items[0].indent, 2);
    EXPECT_EQ(items[0].type, LoggerBase::otHeading);
    EXPECT_EQ(items[1].indent, 1);
    EXPECT_EQ(static_cast<int>(items[1].type), 42) << "unknown kinds are kept for the panel to show as normal";
    EXPECT_EQ(items[2].indent, 0) << "the level does not go below zero";
    EXPECT_TRUE(items[2].text.empty());
}

TEST_F(TaskLogs, BadRegistrationsGiveNullGuardsAndTheLogStillWorks) {
    Zn::Ptr<TaskLog> log(new TaskLog);
    Collector c;
    EXPECT_FALSE(log->registerInterest(c.callback(), 0));
    EXPECT_FALSE(log->registerInterest(c.callback(), 3));
    EXPECT_FALSE(log->registerInterest(c.callback(), -1));
    EXPECT_FALSE(log->registerInterest(Callback(), iTaskLog::kItemsInterest));
    std::vector<Item> replay{Item(L"stale", LoggerBase::otNormal)};
    EXPECT_FALSE(log->registerInterest(c.callback(), 7, replay));
    log->write(L"after", LoggerBase::otNormal);
    EXPECT_EQ(c.heard(), 0u);
    EXPECT_EQ(log->numItems(), 1u);
}

TEST_F(TaskLogs, AListenerMayWriteToTheLogAndAGuardMayOutliveTheLog) {
    Zn::Ptr<TaskLog> log(new TaskLog);
    int depth = 0;
    TaskLog* raw = log.get();
    Callback echo(new FunctionCallback<NotifyMsg, int>(std::function<int(const NotifyMsg& m)>([&](const NotifyMsg& m) {
        auto item = m.dataAs<Item>();
        if (item && item->text == L"ping" && depth++ == 0) raw->write(L"pong", LoggerBase::otNormal);
        return 1;
    })));
    auto guard = log->registerInterest(echo, iTaskLog::kItemsInterest);
    log->write(L"ping", LoggerBase::otNormal);
    std::vector<Item> items;
    log->getItems(items);
    ASSERT_EQ(items.size(), 2u);
    EXPECT_EQ(items[1].text, L"pong");
    log.reset();
    guard->release(); // harmless once the log has gone
    EXPECT_FALSE(guard->active());
}
