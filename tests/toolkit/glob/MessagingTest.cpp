#include "Blocks.h"

#include "core/WidgetCallback.h"
#include "glob/GlobManager.h"
#include "glob/Messaging.h"

#include <thread>

using TestKit::Owned;

namespace {

class Recorder : public StandardPanel {
public:
    Recorder() : StandardPanel(10, 10) {}
    int handleMessageEvent(const LightweightString<char>& m, Glob* sender) override {
        names.push_back(m);
        threads.push_back(co_pid());
        senders.push_back(sender);
        return 1;
    }
    int handleDataMessageEvent(const LightweightString<char>& m, Glob*, const Zn::Ptr<iObject>& data) override {
        names.push_back(m);
        payloads.push_back(data);
        return 1;
    }
    std::vector<LightweightString<char>> names;
    std::vector<int> threads;
    std::vector<Glob*> senders;
    std::vector<Zn::Ptr<iObject>> payloads;
};

class Messaging : public TestKit::ScreenTest {};

} // namespace

TEST_F(Messaging, PostsFromWorkerThreadsArriveOnTheUIThreadInOrder) {
    Owned<Recorder> r(new Recorder);
    constexpr int kPerThread = 2000;
    std::vector<int> workerIds(3, -1);
    std::vector<std::thread> workers;
    for (int t = 0; t < 3; ++t)
        workers.emplace_back([&, t] {
            workerIds[t] = co_pid();
            for (int i = 0; i < kPerThread; ++i) sendMessage(LightweightString<char>(std::to_string(t * 100000 + i)), r.get());
        });
    for (auto& w : workers) w.join();
    EXPECT_TRUE(r->names.empty()) << "nothing is delivered before the loop runs";
    TestKit::pump();

    ASSERT_EQ(r->names.size(), 3u * kPerThread);
    std::vector<int> next(3, 0);
    for (std::size_t i = 0; i < r->names.size(); ++i) {
        int v = std::stoi(r->names[i].str());
        int t = v / 100000;
        EXPECT_EQ(v % 100000, next[t]++) << "message out of order from thread " << t;
        EXPECT_EQ(r->threads[i], 0);
    }
    for (int id : workerIds) EXPECT_GT(id, 0);
    EXPECT_EQ(co_pid(), 0);
}

TEST_F(Messaging, CallDeliversAtOnceAndPostWaits) {
    Owned<Recorder> r(new Recorder);
    Owned<Recorder> sender(new Recorder);
    sender->sendMsg(r.get(), "posted");
    EXPECT_EQ(callMessage("called", r.get(), sender.get()), 1);
    ASSERT_EQ(r->names.size(), 1u);
    EXPECT_EQ(r->names[0], "called");
    EXPECT_EQ(r->senders[0], sender.get());
    TestKit::pump();
    ASSERT_EQ(r->names.size(), 2u);
    EXPECT_EQ(r->names[1], "posted");
    EXPECT_EQ(r->senders[1], sender.get());
}

TEST_F(Messaging, PayloadGoesToTheDataHandler) {
    Owned<Recorder> r(new Recorder);
    Zn::Ptr<iObject> data(new WidgetCallback("x"));
    sendMessageWithData("withData", r.get(), data);
    TestKit::pump();
    ASSERT_EQ(r->payloads.size(), 1u);
    EXPECT_EQ(r->payloads[0], data);
}

TEST_F(Messaging, AMessageToADeadGlobIsDropped) {
    auto* r = new Recorder;
    auto* sender = new Recorder;
    sendMessage("late", r, sender);
    sendMessage("late", sender, r);
    delete r;
    // The sender died too: the receiver gets the message with no sender.
    Owned<Recorder> survivor(sender);
    TestKit::pump();
    ASSERT_EQ(survivor->names.size(), 1u);
    EXPECT_EQ(survivor->senders[0], nullptr);
    // Calling through the dead pointer is the point: the registry answers without touching it.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wuse-after-free"
    EXPECT_EQ(callMessage("x", r), 0);
#pragma GCC diagnostic pop
    sendMessage("to nobody", nullptr);
    TestKit::pump();
}

TEST_F(Messaging, TimerTicksReachGlobsThatAskedForThem) {
    struct Ticker : StandardPanel {
        Ticker() : StandardPanel(10, 10) {}
        int handleTimerEvent() override { return ++ticks; }
        int ticks = 0;
    };
    Owned<Ticker> t(new Ticker);
    GlobManager::instance().tickTimers();
    EXPECT_EQ(t->ticks, 0);
    t->setInterest(Glob::kTimerInterest);
    GlobManager::instance().tickTimers();
    GlobManager::instance().tickTimers();
    EXPECT_EQ(t->ticks, 2);
    t->clearInterest(Glob::kTimerInterest);
    GlobManager::instance().tickTimers();
    EXPECT_EQ(t->ticks, 2);
}
