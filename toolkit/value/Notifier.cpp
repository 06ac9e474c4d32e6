#include "Notifier.h"

#include <algorithm>
#include <mutex>

NotifyMsgTypeDictionary& NotifyMsgTypeDictionary::instance() {
    static NotifyMsgTypeDictionary d;
    return d;
}

NotifyMsgTypeDictionary::NotifyMsgTypeDictionary() : allMsgType(0), notifierGoneMsgType(1) {}

int NotifyMsgTypeDictionary::typeOf(const LightweightString<char>& name) {
    static std::mutex lock;
    static std::vector<LightweightString<char>> names;
    std::lock_guard<std::mutex> g(lock);
    auto it = std::find(names.begin(), names.end(), name);
    if (it != names.end()) return static_cast<int>(it - names.begin()) + 2;
    names.push_back(name);
    return static_cast<int>(names.size()) + 1;
}

bool CallbackInvokerBase::typeMatch(int type) const {
    // The notice of a notifier's end reaches everyone.
    return type_ == type || type_ == NotifyMsgTypeDictionary::instance().allMsgType ||
           type == NotifyMsgTypeDictionary::instance().notifierGoneMsgType;
}

bool NotifierBase::State::isRegistered(const CallbackInvokerBase* r) const {
    return std::any_of(records.begin(), records.end(), [r](const auto& p) { return p.get() == r; });
}

NotifierBase::NotifierBase() : lock_(std::make_shared<CriticalSection>()), state_(std::make_shared<State>()) {}

NotifierBase::~NotifierBase() {
    std::lock_guard<CriticalSection> g(*lock_);
    state_->records.clear();
}

Zn::Ptr<Zn::Guard> NotifierBase::registerInternal(CallbackInvokerBase* record) {
    std::shared_ptr<CallbackInvokerBase> r(record);
    std::lock_guard<CriticalSection> g(*lock_);
    state_->records.push_back(r);
    // The guard keeps the lock and the list alive, so releasing it after the
    // notifier died touches nothing dead.
    std::weak_ptr<State> state = state_;
    std::shared_ptr<CriticalSection> lock = lock_;
    CallbackInvokerBase* raw = r.get();
    return Zn::Ptr<Zn::Guard>(new Zn::Guard([state, lock, raw] {
        std::lock_guard<CriticalSection> g2(*lock);
        if (auto s = state.lock()) s->records.erase(std::remove_if(s->records.begin(), s->records.end(), [raw](const auto& p) { return p.get() == raw; }), s->records.end());
    }));
}

std::size_t NotifierBase::numRegistrations() const {
    std::lock_guard<CriticalSection> g(*lock_);
    return state_->records.size();
}

Notifier::~Notifier() { issueNotification(NotifyMsg("notifierGone"), NotifyMsgTypeDictionary::instance().notifierGoneMsgType); }
