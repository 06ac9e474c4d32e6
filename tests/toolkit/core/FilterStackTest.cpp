#include "core/FilterStack.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace {

struct Taker : FilterStackable<int> {
    int wants = 0;
    std::vector<int> seen;
    bool fsFilterThis(const int& e, void*) override {
        seen.push_back(e);
        return e == wants;
    }
};

} // namespace

TEST(FilterStacks, NewestFilterSeesEventsFirstAndPopRemovesOnlyItsOwnStamp) {
    FilterStack<int> stack;
    Taker older, newer;
    older.wants = 1;
    newer.wants = 2;
    const IdStamp first = stack.push(&older, nullptr);
    const IdStamp second = stack.push(&newer, nullptr);
    EXPECT_NE(first, second);
    EXPECT_EQ(stack.count(), 2u);

    EXPECT_TRUE(stack.filter(1));
    EXPECT_EQ(newer.seen, std::vector<int>{1});
    EXPECT_TRUE(stack.filter(2));
    EXPECT_EQ(older.seen, std::vector<int>{1});
    EXPECT_FALSE(stack.filter(3));

    EXPECT_FALSE(stack.pop(IdStamp::make()));
    EXPECT_EQ(stack.count(), 2u);
    EXPECT_TRUE(stack.pop(second));
    EXPECT_FALSE(stack.pop(second));
    EXPECT_EQ(stack.count(), 1u);
    newer.seen.clear();
    EXPECT_FALSE(stack.filter(2));
    EXPECT_TRUE(newer.seen.empty());
}

TEST(FilterStacks, AFilterThatPopsTheOneBelowItKeepsThatOneFromSeeingTheEvent) {
    FilterStack<int> stack;
    Taker below;
    const IdStamp belowStamp = stack.push(&below, nullptr);
    struct Popper : FilterStackable<int> {
        FilterStack<int>* stack;
        IdStamp victim;
        bool fsFilterThis(const int&, void*) override { return (stack->pop(victim), false); }
    } popper;
    popper.stack = &stack;
    popper.victim = belowStamp;
    stack.push(&popper, nullptr);
    EXPECT_FALSE(stack.filter(5));
    EXPECT_TRUE(below.seen.empty());
}

TEST(FilterStacks, PushAndPopFromManyThreadsKeepTheCount) {
    FilterStack<int> stack;
    Taker t;
    std::vector<std::thread> threads;
    for (int n = 0; n < 4; ++n)
        threads.emplace_back([&] {
            for (int i = 0; i < 200; ++i) stack.pop(stack.push(&t, nullptr));
            stack.push(&t, nullptr);
        });
    for (auto& th : threads) th.join();
    EXPECT_EQ(stack.count(), 4u);
}
