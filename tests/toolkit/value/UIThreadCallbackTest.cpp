#include "value/UIThreadCallback.h"
#include "controls/StandardPanel.h"
#include "core/FunctionCallback.h"
#include "testing/TestKit.h"

#include <gtest/gtest.h>

#include <thread>

namespace {

class Listener : public StandardPanel {
public:
    Listener() : StandardPanel(10, 10) {}
    int onNotice(const NotifyMsg& m) {
        names.push_back(m.name());
        onUIThread.push_back(co_pid() == 0);
        return 1;
    }
    std::vector<LightweightString<char>> names;
    std::vector<bool> onUIThread;
};

class UIThreadCallbacks : public TestKit::ScreenTest {};

Zn::Ptr<iCallbackBase<int, NotifyMsg>> constant(int value, int* calls) {
    return Zn::Ptr<iCallbackBase<int, NotifyMsg>>(
        new FunctionCallback<NotifyMsg, int>(std::function<int(const NotifyMsg&)>([value, calls](const NotifyMsg&) {
            ++*calls;
            return value;
        })));
}

} // namespace

TEST_F(UIThreadCallbacks, OnTheUIThreadTheCallIsImmediateUnlessAlwaysDeferred) {
    Listener l;
    Zn::Ptr<iCallbackBase<int, NotifyMsg>> call(new MethodCallback<Listener, NotifyMsg, int>(&l, &Listener::onNotice));
    Zn::Ptr<UIThreadCallback<NotifyMsg>> now(new UIThreadCallback<NotifyMsg>(call, false));
    EXPECT_EQ(now->execute(NotifyMsg("now")), 1);
    ASSERT_EQ(l.names.size(), 1u);
    Zn::Ptr<UIThreadCallback<NotifyMsg>> later(new UIThreadCallback<NotifyMsg>(call, true));
    EXPECT_EQ(later->execute(NotifyMsg("later")), 0);
    EXPECT_EQ(l.names.size(), 1u) << "deferred until the loop runs";
    later.reset(); // the message in flight keeps the callback alive
    TestKit::pump();
    ASSERT_EQ(l.names.size(), 2u);
    EXPECT_EQ(l.names[1], "later");
}

TEST_F(UIThreadCallbacks, ChecksStopTheCallBeforeAndAfterTheHandOver) {
    Listener l;
    Zn::Ptr<iCallbackBase<int, NotifyMsg>> call(new MethodCallback<Listener, NotifyMsg, int>(&l, &Listener::onNotice));
    int callerCalls = 0, uiCalls = 0;
    Zn::Ptr<UIThreadCallback<NotifyMsg>> cb(new UIThreadCallback<NotifyMsg>(call, true));
    cb->setCallerCheck(constant(0, &callerCalls));
    cb->execute(NotifyMsg("refused"));
    TestKit::pump();
    EXPECT_TRUE(l.names.empty());
    cb->setCallerCheck(constant(1, &callerCalls));
    cb->setUIThreadCheck(constant(0, &uiCalls));
    cb->execute(NotifyMsg("dropped on arrival"));
    EXPECT_EQ(uiCalls, 0) << "the UI-thread check runs on arrival";
    TestKit::pump();
    EXPECT_EQ(uiCalls, 1);
    EXPECT_TRUE(l.names.empty());
}

TEST_F(UIThreadCallbacks, ADeferredCallToAWidgetThatDiedIsDropped) {
    auto* l = new Listener;
    auto cb = makeDeferredCallback(l, &Listener::onNotice);
    cb->execute(NotifyMsg("too late"));
    delete l;
    TestKit::pump(); // must not touch the dead widget
    Listener alive;
    auto cb2 = makeDeferredCallback(&alive, &Listener::onNotice);
    EXPECT_EQ(cb2->execute(NotifyMsg("in time")), 0);
    EXPECT_TRUE(alive.names.empty()) << "always after the current event";
    TestKit::pump();
    ASSERT_EQ(alive.names.size(), 1u);
}

TEST_F(UIThreadCallbacks, WorkerThreadsCallsArriveOnTheUIThreadInOrder) {
    Listener l;
    auto cb = makeDeferredCallback(&l, &Listener::onNotice);
    constexpr int kEach = 1000;
    std::vector<std::thread> workers;
    for (int t = 0; t < 4; ++t)
        workers.emplace_back([cb, t] {
            for (int i = 0; i < kEach; ++i) cb->execute(NotifyMsg(LightweightString<char>(std::to_string(t * 100000 + i))));
        });
    for (auto& w : workers) w.join();
    TestKit::pump();
    ASSERT_EQ(l.names.size(), 4u * kEach);
    std::vector<int> next(4, 0);
    for (std::size_t i = 0; i < l.names.size(); ++i) {
        int v = std::stoi(l.names[i].str());
        EXPECT_EQ(v % 100000, next[v / 100000]++);
        EXPECT_TRUE(l.onUIThread[i]);
    }
}
