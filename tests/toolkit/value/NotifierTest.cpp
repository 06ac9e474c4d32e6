#include "value/Notifier.h"
#include "core/FunctionCallback.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace {
Zn::Ptr<iCallbackBase<int, NotifyMsg>> counter(std::atomic<int>& n, std::vector<LightweightString<char>>* names = nullptr) {
    return Zn::Ptr<iCallbackBase<int, NotifyMsg>>(
        new FunctionCallback<NotifyMsg, int>(std::function<int(const NotifyMsg&)>([&n, names](const NotifyMsg& m) {
            ++n;
            if (names) names->push_back(m.name());
            return 0;
        })));
}
} // namespace

TEST(Notifier, DeliversByTypeInOrderUntilTheGuardGoes) {
    Notifier n;
    std::atomic<int> all{0}, five{0};
    std::vector<LightweightString<char>> names;
    auto gAll = n.addListener(counter(all, &names));
    auto gFive = n.addListener(counter(five), 5);
    n.issueNotification(NotifyMsg("a"), 5);
    n.issueNotification(NotifyMsg("b"), 6);
    EXPECT_EQ(all, 2);
    EXPECT_EQ(five, 1);
    EXPECT_EQ(names, (std::vector<LightweightString<char>>{"a", "b"}));
    gFive.reset();
    n.issueNotification(NotifyMsg("c"), 5);
    EXPECT_EQ(five, 1);
    EXPECT_EQ(n.numRegistrations(), 1u);
}

TEST(Notifier, OnlyListenersOfAllTypesHearTheEndAndGuardsOutliveTheNotifier) {
    std::atomic<int> typed{0}, all{0};
    std::vector<LightweightString<char>> names;
    Zn::Ptr<Zn::Guard> typedGuard, allGuard;
    {
        Notifier n;
        typedGuard = n.addListener(counter(typed), 42);
        allGuard = n.addListener(counter(all, &names));
    }
    EXPECT_EQ(typed, 0) << "a listener of one type is told nothing it did not ask for";
    EXPECT_EQ(all, 1);
    EXPECT_EQ(names, std::vector<LightweightString<char>>{"notifierGone"});
    typedGuard->release();
    typedGuard.reset();
}

TEST(Notifier, ACallbackMayRegisterAndReleaseDuringDelivery) {
    Notifier n;
    std::atomic<int> late{0};
    Zn::Ptr<Zn::Guard> lateGuard, selfGuard;
    auto cb = Zn::Ptr<iCallbackBase<int, NotifyMsg>>(new FunctionCallback<NotifyMsg, int>(std::function<int(const NotifyMsg&)>([&](const NotifyMsg&) {
        if (!lateGuard) lateGuard = n.addListener(counter(late));
        selfGuard.reset();
        return 0;
    })));
    selfGuard = n.addListener(cb);
    n.issueNotification(NotifyMsg("x"), 3);
    EXPECT_EQ(late, 0) << "a registration made during delivery waits for the next notice";
    n.issueNotification(NotifyMsg("y"), 3);
    EXPECT_EQ(late, 1);
}

TEST(Notifier, ThreadsIssueAndRegisterAtOnce) {
    Notifier n;
    std::atomic<int> heard{0};
    auto g = n.addListener(counter(heard));
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&n, t] {
            std::atomic<int> mine{0};
            for (int i = 0; i < 500; ++i) {
                auto own = n.addListener(counter(mine), 100 + t);
                n.issueNotification(NotifyMsg("tick"), 7);
            }
        });
    for (auto& th : threads) th.join();
    EXPECT_EQ(heard, 2000);
    EXPECT_EQ(n.numRegistrations(), 1u);
    EXPECT_EQ(NotifyMsgTypeDictionary::instance().typeOf("x"), NotifyMsgTypeDictionary::instance().typeOf("x"));
    EXPECT_NE(NotifyMsgTypeDictionary::instance().typeOf("x"), NotifyMsgTypeDictionary::instance().typeOf("y"));
}
