#pragma once

#include "GenericNotifier.h"
#include "NotifyMsgTypeDictionary.h"
#include "core/NotifyMsg.h"

/// The notifier of named notices. Listeners register under a type and hear only
/// notices of it; allMsgType hears all, and so also notifierGoneMsgType, once, with
/// no payload, when the notifier dies.
class Notifier : public GenericNotifier<NotifyMsg> {
public:
    ~Notifier() override;
    Zn::Ptr<Zn::Guard> addListener(const Zn::Ptr<iCallbackBase<int, NotifyMsg>>& callback,
                                   int type = NotifyMsgTypeDictionary::instance().allMsgType) {
        return registerCallback(callback, type);
    }
};
