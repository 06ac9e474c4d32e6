#include "DiskTestSupport.h"

#include "core/FunctionCallback.h"
#include "media/DiskScanner.h"
#include "media/MountTable.h"
#include "media/bytesAsString.h"
#include "value/UIThreadCallback.h"

#include <gtest/gtest.h>

#include <atomic>
#include <condition_variable>
#include <mutex>

using DiskTest::mountLine;

TEST(MountTable, KeepsRealVolumesDecodedAndLeavesOutPseudoAndBindMounts) {
    const std::string table = mountLine(21, "0:20", "/proc", "proc") + mountLine(26, "254:0", "/") + "garbage line\n" +
                              mountLine(30, "8:1", "/media/My\\040Disk") + mountLine(31, "0:27", "/sys/fs/cgroup", "tmpfs") +
                              mountLine(32, "8:1", "/srv/again") + mountLine(33, "8:2", "/home/bound", "ext4", "/data") +
                              mountLine(34, "8:3", "/mnt/odd\\04") + "35 1 8:4 / /mnt/nodash rw shared:1 ext4 /dev/x rw\n";
    const std::vector<MediaDrive> v = MountTable::parse(table);
    ASSERT_EQ(v.size(), 3u);
    EXPECT_EQ(v[0].mountPoint, "/");
    EXPECT_EQ(v[1].mountPoint, "/media/My Disk");
    EXPECT_EQ(v[1].getUserName(false), L"My Disk");
    EXPECT_EQ(v[1].getUserName(true), L"My Disk (/media/My Disk)");
    EXPECT_EQ(v[0].getUserName(true), L"/");
    EXPECT_EQ(v[2].mountPoint, "/mnt/odd\\04") << "a short escape stays as it is";
    EXPECT_EQ(v[2].fsType, "ext4");
    EXPECT_TRUE(MountTable::parse("").empty());
    EXPECT_EQ(MountTable::decode("a\\011b\\134c\\000"), "a\tb\\c\\000") << "no NUL is made";
}

TEST(BytesAsString, AbbreviatesToTheLargestUnitAndWritesBytesInFull) {
    EXPECT_EQ(bytesAsString(512, true), L"512 bytes");
    EXPECT_EQ(bytesAsString(1536, true), L"1.5 KB");
    EXPECT_EQ(bytesAsString(12ul << 20, true), L"12 MB");
    EXPECT_EQ(bytesAsString(3ul << 39, true), L"1.5 TB");
    EXPECT_EQ(bytesAsString(1536, false), L"1536 bytes");
    EXPECT_EQ(bytesAsString(0, true), L"0 bytes");
    EXPECT_FALSE(bytesAsString(~0ul, true).empty());
}

TEST(DiskScanner, AVolumeKeepsItsIdAcrossRescansAndRemountsAndNoneIsAutomatic) {
    DiskScanner scanner(DiskSources{});
    const auto first = scanner.volumesOf(mountLine(1, "8:1", "/a") + mountLine(2, "8:2", "/b"));
    const auto second = scanner.volumesOf(mountLine(2, "8:2", "/b") + mountLine(3, "8:3", "/c"));
    const auto third = scanner.volumesOf(mountLine(1, "8:1", "/a") + mountLine(3, "8:3", "/c"));
    ASSERT_EQ(first.size(), 2u);
    ASSERT_EQ(second.size(), 2u);
    EXPECT_EQ(second[0].id, first[1].id);
    EXPECT_NE(second[1].id, first[0].id);
    EXPECT_EQ(third[0].id, first[0].id) << "mounted again, same id";
    std::string many;
    for (int i = 0; i < 300; ++i) many += mountLine(i, "9:" + std::to_string(i), "/m" + std::to_string(i));
    for (const MediaDrive& d : scanner.volumesOf(many)) EXPECT_FALSE(d.id.isAuto());
    const auto after = scanner.volumesOf(mountLine(1, "8:1", "/a"));
    ASSERT_EQ(after.size(), 1u);
    EXPECT_FALSE(after[0].id.isAuto());
}

class DiskManagerWatch : public TestKit::ScreenTest {
protected:
    static Zn::Ptr<Zn::Guard> countNotices(std::atomic<int>& count) {
        return DiskManager::addListener(Zn::Ptr<iCallbackBase<int, NotifyMsg>>(new FunctionCallback<NotifyMsg, int>([&count](const NotifyMsg& m) {
            if (m.name() == DiskManager::MediaLocationsChangeMsg) ++count;
            return 0;
        })));
    }
};

TEST_F(DiskManagerWatch, MountsAndUnmountsArriveOnTheUIThreadAndSpaceAloneSendsNoNotice) {
    DiskTest::TableFile table;
    std::atomic<double> freeGb{2.0};
    std::atomic<bool> offUIThread{true};
    table.write(mountLine(1, "8:1", "/"));
    const DiskTest::WatchGuard stopWatching;
    DiskManager::watch(DiskTest::sources(table, [&](const LightweightString<char>&) {
        if (co_pid() == 0) offUIThread = false;
        return DiskTest::gigabytes(freeGb);
    }));
    std::atomic<int> notices{0};
    const Zn::Ptr<Zn::Guard> guard = countNotices(notices);
    ASSERT_EQ(DiskManager::numVolumes(), 1) << "the table is read at once; space follows";
    ASSERT_TRUE(DiskTest::pumpUntil([] { return DiskManager::getMediaDrive(0).freeMegabytes.has_value(); }));
    EXPECT_DOUBLE_EQ(*DiskManager::getMediaDrive(0).freeMegabytes, 2048.0);

    table.write(mountLine(1, "8:1", "/") + mountLine(2, "8:9", "/media/usb"));
    ASSERT_TRUE(DiskTest::pumpUntil([] { return DiskManager::numVolumes() == 2; }));
    EXPECT_EQ(notices, 1);
    const DriveId usb = DiskManager::get_drive(1);
    EXPECT_EQ(DiskManager::find_index_for_drive(usb), 1);

    freeGb = 1.0;
    ASSERT_TRUE(DiskTest::pumpUntil([] { return DiskManager::getMediaDrive(0).freeMegabytes == 1024.0; }));
    EXPECT_EQ(notices, 1) << "free space alone is no change of locations";

    table.write(mountLine(1, "8:1", "/"));
    ASSERT_TRUE(DiskTest::pumpUntil([] { return DiskManager::numVolumes() == 1; }));
    EXPECT_EQ(notices, 2);
    EXPECT_EQ(DiskManager::find_index_for_drive(usb), -1);
    EXPECT_TRUE(DiskManager::getMediaDrive(7).id.isAuto()) << "past the end";
    EXPECT_TRUE(offUIThread) << "statvfs is never asked on the user-interface thread";
}

TEST_F(DiskManagerWatch, AVolumeWhoseStatvfsHangsLeavesTheUIThreadRunning) {
    DiskTest::TableFile table;
    table.write(mountLine(1, "8:1", "/") + mountLine(2, "0:50", "/net/dead", "nfs"));
    std::mutex lock;
    std::condition_variable cv;
    bool released = false, blocked = false;
    const DiskTest::WatchGuard stopWatching;
    DiskManager::watch(DiskTest::sources(table, [&](const LightweightString<char>& at) -> std::optional<DiskSources::Space> {
        if (at != "/net/dead") return DiskTest::gigabytes(3);
        std::unique_lock<std::mutex> hold(lock);
        blocked = true;
        cv.notify_all();
        cv.wait(hold, [&] { return released; });
        return DiskTest::gigabytes(1);
    }));
    {
        std::unique_lock<std::mutex> hold(lock);
        cv.wait(hold, [&] { return blocked; });
    }
    // While the watcher hangs, the loop still delivers what is posted to it.
    std::atomic<int> heard{0};
    Zn::Ptr<iCallbackBase<int, NotifyMsg>> call(new FunctionCallback<NotifyMsg, int>([&heard](const NotifyMsg&) { return ++heard; }));
    Zn::Ptr<UIThreadCallback<NotifyMsg>> posted(new UIThreadCallback<NotifyMsg>(call, true));
    posted->execute(NotifyMsg("tick"));
    TestKit::pump();
    EXPECT_EQ(heard, 1);
    EXPECT_EQ(DiskManager::numVolumes(), 2);
    EXPECT_FALSE(DiskManager::getMediaDrive(1).freeMegabytes.has_value());
    {
        const std::lock_guard<std::mutex> hold(lock);
        released = true;
    }
    cv.notify_all();
    ASSERT_TRUE(DiskTest::pumpUntil([] { return DiskManager::getMediaDrive(1).freeMegabytes.has_value(); }));
    EXPECT_DOUBLE_EQ(*DiskManager::getMediaDrive(1).freeMegabytes, 1024.0);
}
