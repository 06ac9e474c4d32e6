#pragma once

#include "DiskSources.h"
#include "MediaDrive.h"
#include "core/NotifyMsg.h"
#include "core/iCallbackBase.h"
#include "value/Notifier.h"

#include <memory>
#include <vector>

class DiskWatcher;

/// The machine's media drives: the mounted volumes that are not pseudo file systems
/// or bind mounts, each with its DriveId and free space. A DiskWatcher follows the
/// mount table and the space on its own thread; its lists reach the manager on the
/// user-interface thread, where everything here is used. Listeners hear
/// MediaLocationsChangeMsg when volumes come or go, not when only space changes.
/// The manager starts watching the machine's own table at first use.
class DiskManager {
public:
    static constexpr const char* MediaLocationsChangeMsg = "MediaLocationsChangeMsg";

    static unsigned short numVolumes();
    // An index past the end gives an empty drive, of the automatic id.
    static MediaDrive getMediaDrive(unsigned short index);
    static DriveId get_drive(unsigned short index);
    // The index of the volume with that id, -1 when none has it.
    static int find_index_for_drive(const DriveId& drive);
    static Zn::Ptr<Zn::Guard> addListener(const Zn::Ptr<iCallbackBase<int, NotifyMsg>>& callback);
    // Watches other sources from now on: a mount table file of a test, a space
    // function that blocks. Lists of the sources before are dropped on arrival.
    static void watch(const DiskSources& sources);

    ~DiskManager();
    DiskManager(const DiskManager&) = delete;
    DiskManager& operator=(const DiskManager&) = delete;

private:
    DiskManager();
    static DiskManager& instance();
    void startWatching(const DiskSources& sources);
    void adopt(const std::vector<MediaDrive>& volumes);
    int receive(const NotifyMsg& message);

    std::vector<MediaDrive> volumes_;
    Notifier notifier_;
    Zn::Ptr<iCallbackBase<int, NotifyMsg>> delivery_;
    unsigned generation_ = 0;
    std::unique_ptr<DiskWatcher> watcher_;
};
