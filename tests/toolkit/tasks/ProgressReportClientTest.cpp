#include "tasks/ProgressReportClient.h"

#include <gtest/gtest.h>

#include <cmath>
#include <mutex>
#include <thread>

namespace {

class Recorder : public ProgressReportClient {
public:
    void handleProgressUpdate(const ProgressSnapshot& s) override {
        std::lock_guard<std::mutex> g(lock);
        fractions.push_back(s.fraction);
        texts.push_back(s.text);
    }
    float last() {
        std::lock_guard<std::mutex> g(lock);
        return fractions.empty() ? -1.0f : fractions.back();
    }
    std::mutex lock;
    std::vector<float> fractions;
    std::vector<LightweightString<wchar_t>> texts;
};

} // namespace

TEST(ProgressReportClient, OutsideSubTasksTheFractionPassesAsGiven) {
    Recorder r;
    r.updateProgress(0.3, L"reading");
    EXPECT_FLOAT_EQ(r.last(), 0.3f);
    EXPECT_EQ(r.texts.back(), L"reading");
    r.updateProgress(-0.5, L"");
    EXPECT_FLOAT_EQ(r.last(), -0.5f) << "a display decides what to make of values out of range";
    r.updateProgress(std::nan(""), L"");
    EXPECT_FLOAT_EQ(r.last(), 0.0f);
    ProgressSnapshot s(0.8f, L"with picture");
    r.updateProgress(s);
    EXPECT_FLOAT_EQ(r.last(), 0.8f);
    EXPECT_EQ(r.texts.back(), L"with picture");
}

TEST(ProgressReportClient, NestedSubTasksMapToAFractionOfTheWhole) {
    Recorder r;
    r.startSubTasks(4);
    r.updateProgress(0.5, L"");
    EXPECT_FLOAT_EQ(r.last(), 0.125f);
    r.nextSubTask();
    EXPECT_FLOAT_EQ(r.last(), 0.25f) << "the next part reports its start";
    r.startSubTasks(std::vector<unsigned long>{1, 3});
    r.nextSubTask();
    r.updateProgress(0.5, L"");
    // Part two of four, and in it 1 + 1.5 of 4.
    EXPECT_FLOAT_EQ(r.last(), 0.25f + 0.25f * (2.5f / 4.0f));
    r.updateProgress(7.0, L"");
    EXPECT_FLOAT_EQ(r.last(), 0.5f) << "inside a part the fraction is clamped";
    EXPECT_EQ(r.subTaskDepth(), 2u);
    r.endSubTasks();
    r.updateProgress(1.0, L"");
    EXPECT_FLOAT_EQ(r.last(), 0.5f);
    r.nextSubTask();
    r.nextSubTask();
    r.nextSubTask();
    EXPECT_FLOAT_EQ(r.last(), 1.0f) << "past the last part the level is done";
    r.reset();
    EXPECT_EQ(r.subTaskDepth(), 0u);
    r.updateProgress(0.1, L"");
    EXPECT_FLOAT_EQ(r.last(), 0.1f);
}

TEST(ProgressReportClient, DegenerateSubTasksStayBalancedAndHarmless) {
    Recorder r;
    r.endSubTasks();
    r.nextSubTask();
    EXPECT_TRUE(r.fractions.empty()) << "no level: nothing to move";
    r.startSubTasks(0ul);
    r.startSubTasks(std::vector<unsigned long>{});
    r.startSubTasks(std::vector<unsigned long>{0, 0});
    EXPECT_EQ(r.subTaskDepth(), 3u);
    r.updateProgress(0.5, L"");
    EXPECT_FLOAT_EQ(r.last(), 0.5f) << "each is one whole part";
    r.startSubTasks(std::vector<unsigned long>{0, 2});
    r.updateProgress(0.9, L"");
    EXPECT_FLOAT_EQ(r.last(), 0.0f) << "a part of weight 0 takes no room";
    r.nextSubTask();
    r.updateProgress(0.5, L"");
    EXPECT_FLOAT_EQ(r.last(), 0.5f);
    for (int i = 0; i < 4; ++i) r.endSubTasks();
    EXPECT_EQ(r.subTaskDepth(), 0u);
}

TEST(ProgressReportClient, ReportsFromSeveralThreadsKeepTheSubTasksConsistent) {
    Recorder r;
    r.startSubTasks(1000);
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&r] {
            for (int i = 0; i < 250; ++i) {
                r.updateProgress(0.5, L"working");
                r.nextSubTask();
            }
        });
    for (auto& t : threads) t.join();
    EXPECT_FLOAT_EQ(r.last(), 1.0f);
    std::lock_guard<std::mutex> g(r.lock);
    EXPECT_EQ(r.fractions.size(), 2000u);
    for (float f : r.fractions) EXPECT_TRUE(f >= 0.0f && f <= 1.0f);
}
