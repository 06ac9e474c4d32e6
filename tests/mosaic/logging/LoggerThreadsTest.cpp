#include "LoggerTestSupport.h"

#include <atomic>
#include <thread>

TEST_F(LoggerFixture, FourWritersOnOneLogReachTheShowingPanelOnceEachInTheirOwnOrder) {
    constexpr int kWriters = 4, kItems = 10'000;
    Zn::Ptr<iTaskLog> log(new TaskLog);
    Logger* l = make(0, log, 20, 500);
    std::atomic<int> finished{0};
    std::vector<std::thread> writers;
    for (int w = 0; w < kWriters; ++w)
        writers.emplace_back([&log, &finished, w] {
            for (int i = 0; i < kItems; ++i)
                log->write(LightweightString<wchar_t>(std::to_wstring(w) + L" " + std::to_wstring(i)), LoggerBase::otNormal);
            ++finished;
        });
    // The panel takes rows in while the writers are still at work.
    while (finished.load() < kWriters) GlobManager::instance().processPending();
    for (auto& t : writers) t.join();
    TestKit::pump();

    ASSERT_EQ(l->rowCount(), kWriters * kItems);
    std::vector<int> next(kWriters, 0);
    int outOfOrder = 0;
    for (unsigned short r = 0; r < l->rowCount(); ++r) {
        std::wstring text = l->rows()[r].text.str();
        int w = std::stoi(text.substr(0, text.find(L' ')));
        int i = std::stoi(text.substr(text.find(L' ') + 1));
        ASSERT_TRUE(w >= 0 && w < kWriters) << "row " << r;
        outOfOrder += i != next[static_cast<std::size_t>(w)];
        next[static_cast<std::size_t>(w)] = i + 1;
    }
    EXPECT_EQ(outOfOrder, 0) << "each writer's items in its own order, none twice, none missed";
    EXPECT_EQ(next, std::vector<int>(kWriters, kItems));
    EXPECT_EQ(l->table()->getCurPos().y, kWriters * kItems - 1) << "the table follows the last row";
}
