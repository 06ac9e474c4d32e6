#include "fireCallback.h"

#include "Glob.h"
#include "Messaging.h"

bool fireCallback(Glob* sender, WidgetCallback callback) {
    return fireCallback(sender, std::move(callback), sender ? sender->logicalParent() : nullptr);
}

bool fireCallback(Glob* sender, WidgetCallback callback, EventHandler* recipient) {
    const GlobHandle<Glob> alive(sender);
    if (callback.invoke()) return !sender || alive;
    if (callback.message().empty() || !sender || !recipient) return true;
    if (callback.payload())
        sendMessageWithData(callback.message(), recipient, callback.payload(), sender);
    else
        sendMessage(callback.message(), recipient, sender);
    return true;
}
