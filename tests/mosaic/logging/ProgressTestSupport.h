#pragma once

#include "platform/Clock.h"
#include "testing/TestKit.h"

#include <gtest/gtest.h>

// Progress displays under a test clock. Each test starts at a time of its own, far
// from the others, so that what one display remembers of the last update never
// falls within another test's 10 ms.
class ProgressTest : public ::testing::Test {
protected:
    void SetUp() override {
        static std::int64_t base = 1'000'000;
        base += 100'000'000;
        Clock::setTestTime(base);
    }
    void TearDown() override {
        TestKit::reset();
        Clock::clearTestTime();
    }
};
