#include "ZnPluginManagerIter.h"

void ZnPluginManagerIter::init(ZnPluginManager& manager, bool all, int start) {
    manager_ = &manager;
    all_ = all;
    at_ = start > 0 ? static_cast<std::size_t>(start) : 0;
    settle();
}

ZnDeviceDriver* ZnPluginManagerIter::operator*() const {
    return manager_ && at_ < manager_->plugins().size() ? manager_->plugins()[at_].get() : nullptr;
}

ZnPluginManagerIter& ZnPluginManagerIter::operator++() {
    if (manager_ && at_ < manager_->plugins().size()) ++at_;
    settle();
    return *this;
}

void ZnPluginManagerIter::settle() {
    if (!manager_) return;
    const auto& p = manager_->plugins();
    while (at_ < p.size() && ((type_ != kResourceNone && p[at_]->resourceType != type_) || (!all_ && !p[at_]->isEnabled()))) ++at_;
}
