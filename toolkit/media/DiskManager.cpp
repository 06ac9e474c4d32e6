#include "DiskManager.h"

#include "DiskWatcher.h"
#include "core/MethodCallback.h"
#include "glob/GlobManager.h"
#include "value/UIThreadCallback.h"

#include <algorithm>

namespace {

// One list of volumes on its way to the user-interface thread.
class VolumeList : public iObject {
public:
    VolumeList(unsigned generation, std::vector<MediaDrive> volumes) : generation(generation), volumes(std::move(volumes)) {}
    unsigned generation;
    std::vector<MediaDrive> volumes;
};

bool sameVolumes(const std::vector<MediaDrive>& a, const std::vector<MediaDrive>& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const MediaDrive& x, const MediaDrive& y) { return x.sameVolume(y); });
}

} // namespace

DiskManager::DiskManager() {
    // Made first, the glob manager is destroyed after this one at exit, so the
    // watcher never posts into a queue that has gone.
    GlobManager::instance();
    Zn::Ptr<iCallbackBase<int, NotifyMsg>> call(new MethodCallback<DiskManager, NotifyMsg, int>(this, &DiskManager::receive));
    delivery_ = Zn::Ptr<iCallbackBase<int, NotifyMsg>>(new UIThreadCallback<NotifyMsg>(call, true));
    startWatching(DiskSources());
}

// The watcher stops before the delivery it calls goes.
DiskManager::~DiskManager() { watcher_.reset(); }

DiskManager& DiskManager::instance() {
    static DiskManager manager;
    return manager;
}

void DiskManager::startWatching(const DiskSources& sources) {
    watcher_.reset();
    const unsigned generation = ++generation_;
    Zn::Ptr<iCallbackBase<int, NotifyMsg>> delivery = delivery_;
    watcher_ = std::make_unique<DiskWatcher>(sources, [generation, delivery](const std::vector<MediaDrive>& volumes) {
        delivery->execute(NotifyMsg(LightweightString<char>(), Zn::Ptr<iObject>(new VolumeList(generation, volumes))));
    });
    adopt(watcher_->initialVolumes());
}

void DiskManager::adopt(const std::vector<MediaDrive>& volumes) {
    const bool changed = !sameVolumes(volumes_, volumes);
    volumes_ = volumes;
    if (changed) notifier_.issueNotification(NotifyMsg(MediaLocationsChangeMsg), NotifyMsgTypeDictionary::instance().allMsgType);
}

int DiskManager::receive(const NotifyMsg& message) {
    const Zn::Ptr<VolumeList> list = message.dataAs<VolumeList>();
    if (list && list->generation == generation_) adopt(list->volumes);
    return 0;
}

unsigned short DiskManager::numVolumes() { return static_cast<unsigned short>(std::min<std::size_t>(instance().volumes_.size(), 0xFFFF)); }

MediaDrive DiskManager::getMediaDrive(unsigned short index) {
    const std::vector<MediaDrive>& v = instance().volumes_;
    return index < v.size() ? v[index] : MediaDrive();
}

DriveId DiskManager::get_drive(unsigned short index) { return getMediaDrive(index).id; }

int DiskManager::find_index_for_drive(const DriveId& drive) {
    const std::vector<MediaDrive>& v = instance().volumes_;
    const auto it = std::find_if(v.begin(), v.end(), [&drive](const MediaDrive& d) { return d.id == drive; });
    return it == v.end() ? -1 : static_cast<int>(it - v.begin());
}

Zn::Ptr<Zn::Guard> DiskManager::addListener(const Zn::Ptr<iCallbackBase<int, NotifyMsg>>& callback) {
    return instance().notifier_.addListener(callback);
}

void DiskManager::watch(const DiskSources& sources) { instance().startWatching(sources); }
