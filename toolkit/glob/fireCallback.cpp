#include "fireCallback.h"

#include "Glob.h"
#include "Messaging.h"

void fireCallback(Glob* sender, const WidgetCallback& callback) {
    if (callback.invoke()) return;
    if (callback.message().empty() || !sender) return;
    Glob* owner = sender->logicalParent();
    if (!owner) return;
    if (callback.payload())
        sendMessageWithData(callback.message(), owner, callback.payload(), sender);
    else
        sendMessage(callback.message(), owner, sender);
}
