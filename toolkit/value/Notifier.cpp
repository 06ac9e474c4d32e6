#include "Notifier.h"

#include <algorithm>
#include <mutex>
#include <vector>

NotifyMsgTypeDictionary& NotifyMsgTypeDictionary::instance() {
    static NotifyMsgTypeDictionary d;
    return d;
}

namespace {
std::mutex& namesLock() {
    static std::mutex lock;
    return lock;
}
std::vector<LightweightString<char>>& names() {
    static std::vector<LightweightString<char>> n;
    return n;
}
} // namespace

NotifyMsgTypeDictionary::NotifyMsgTypeDictionary() : notifierGoneMsgType(1) {
    // Numbers 2 and 3 are the value servers' own, fixed at compile time.
    names() = {"valChanged", "preValChanged"};
}

int NotifyMsgTypeDictionary::typeOf(const LightweightString<char>& name) {
    std::lock_guard<std::mutex> g(namesLock());
    auto& names = ::names();
    auto it = std::find(names.begin(), names.end(), name);
    if (it != names.end()) return static_cast<int>(it - names.begin()) + 2;
    names.push_back(name);
    return static_cast<int>(names.size()) + 1;
}

Notifier::~Notifier() { issueNotification(NotifyMsg("notifierGone"), NotifyMsgTypeDictionary::instance().notifierGoneMsgType); }
