#include "MessageBase.h"

void MessageBase::addHandler(const LightweightString<char>& message, Handler handler) {
    if (message.empty() || !handler) return;
    handlers_[message] = std::move(handler);
}

int MessageBase::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    auto it = handlers_.find(message);
    if (it == handlers_.end()) return StandardPanel::handleMessageEvent(message, sender);
    // A copy: the handler may replace itself.
    Handler h = it->second;
    return h(NotifyMsg(message, {}));
}

int MessageBase::handleDataMessageEvent(const LightweightString<char>& message, Glob* sender, const Zn::Ptr<iObject>& data) {
    auto it = handlers_.find(message);
    if (it == handlers_.end()) return StandardPanel::handleDataMessageEvent(message, sender, data);
    Handler h = it->second;
    return h(NotifyMsg(message, data));
}
