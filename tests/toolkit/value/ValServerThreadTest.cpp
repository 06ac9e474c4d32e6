#include "controls/StandardPanel.h"
#include "testing/TestKit.h"
#include "value/UIThreadCallback.h"
#include "value/ValServer.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace {

// A widget that follows a server written by worker threads: the server's notices
// run on the writer's thread, so the widget hears them through the UI thread.
class Follower : public StandardPanel {
public:
    explicit Follower(ValServer<int>& server) : StandardPanel(10, 10) {
        Zn::Ptr<iCallbackBase<int, NotifierEvent<int>>> call(new MethodCallback<Follower, NotifierEvent<int>, int>(this, &Follower::onChange));
        auto* handOver = new UIThreadCallback<NotifierEvent<int>>(call, false);
        Zn::Ptr<iCallbackBase<int, NotifierEvent<int>>> deferred(handOver);
        handOver->setUIThreadCheck(Zn::Ptr<iCallbackBase<int, NotifierEvent<int>>>(new EventHandlerExistenceCheck<NotifierEvent<int>>(this)));
        guard_ = server.registerCallback(deferred, NotifyMsgTypeDictionary::instance().allMsgType);
    }
    int onChange(const NotifierEvent<int>& e) {
        EXPECT_EQ(co_pid(), 0);
        ++notices;
        last = e.value;
        return 0;
    }
    int notices = 0;
    int last = -1;

private:
    Zn::Ptr<Zn::Guard> guard_;
};

} // namespace

TEST(ValServerThreads, FourWritersAtOnceLoseNoNoticeAndNeverReachADeadWidget) {
    ValServer<int> server(0);
    constexpr int kWriters = 4, kEach = 2500;
    Follower stays(server);
    auto* leaves = new Follower(server);
    std::atomic<int> started{0};
    std::vector<std::thread> writers;
    for (int t = 0; t < kWriters; ++t)
        writers.emplace_back([&server, &started, t] {
            ++started;
            while (started < kWriters) std::this_thread::yield();
            for (int i = 1; i <= kEach; ++i) server = t * kEach + i;
        });
    // The UI thread keeps delivering while the writers run, and one widget dies midway.
    while (stays.notices < kWriters * kEach / 2) TestKit::pump();
    delete leaves;
    for (auto& w : writers) w.join();
    TestKit::pump();
    EXPECT_EQ(stays.notices, kWriters * kEach);
    EXPECT_EQ(stays.last, server.value()) << "notices arrive in the order the server stored the values";
    TestKit::reset();
}
