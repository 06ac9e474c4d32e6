#include "TaskLog.h"

#include "value/NotifyMsgTypeDictionary.h"

#include <mutex>

namespace {
int itemNoticeType() {
    static const int type = NotifyMsgTypeDictionary::instance().typeOf(TaskLog::kItemMsg);
    return type;
}
int progressNoticeType() {
    static const int type = NotifyMsgTypeDictionary::instance().typeOf(TaskLog::kProgressMsg);
    return type;
}
} // namespace

TaskLog::~TaskLog() {
    // Listeners still registered simply stop hearing; their guards stay harmless.
    std::lock_guard<CriticalSection> g(lock_);
    items_.clear();
}

void TaskLog::write(const LightweightString<wchar_t>& text, eOutputType type) {
    std::lock_guard<CriticalSection> g(lock_);
    items_.emplace_back(text, type, indentLevel());
    if (!itemListeners_.hasRegistrations()) return;
    NotifyMsg msg(kItemMsg, Zn::Ptr<iObject>(new Item(items_.back())));
    itemListeners_.issueNotification(msg, itemNoticeType());
}

void TaskLog::handleProgressUpdate(const ProgressSnapshot& snapshot) {
    std::lock_guard<CriticalSection> g(lock_);
    if (!progressListeners_.hasRegistrations()) return;
    NotifyMsg msg(kProgressMsg, Zn::Ptr<iObject>(new ProgressSnapshot(snapshot.fraction, snapshot.text, snapshot.image)));
    progressListeners_.issueNotification(msg, progressNoticeType());
}

void TaskLog::getItems(std::vector<LoggerBase::Item>& items) const {
    std::lock_guard<CriticalSection> g(lock_);
    items = items_;
}

std::size_t TaskLog::numItems() const {
    std::lock_guard<CriticalSection> g(lock_);
    return items_.size();
}

GenericNotifier<NotifyMsg>* TaskLog::notifierFor(int kind) {
    if (kind == kItemsInterest) return &itemListeners_;
    if (kind == kProgressInterest) return &progressListeners_;
    return nullptr;
}

Zn::Ptr<Zn::Guard> TaskLog::registerInterest(const Zn::Ptr<iCallbackBase<int, NotifyMsg>>& callback, int kind) {
    GenericNotifier<NotifyMsg>* notifier = notifierFor(kind);
    if (!notifier || !callback) return {};
    std::lock_guard<CriticalSection> g(lock_);
    return notifier->registerCallback(callback, NotifyMsgTypeDictionary::instance().allMsgType);
}

Zn::Ptr<Zn::Guard> TaskLog::registerInterest(const Zn::Ptr<iCallbackBase<int, NotifyMsg>>& callback, int kind,
                                             std::vector<LoggerBase::Item>& itemsSoFar) {
    std::lock_guard<CriticalSection> g(lock_);
    itemsSoFar = items_;
    return registerInterest(callback, kind);
}
