#pragma once

#include "GenericNotifier.h"
#include "NotifyMsgTypeDictionary.h"
#include "core/NotifyMsg.h"

// The notifier of named notices. Listeners register under a type (allMsgType hears
// all); when the notifier dies, each hears notifierGoneMsgType once.
class Notifier : public GenericNotifier<NotifyMsg> {
public:
    ~Notifier() override;
    Zn::Ptr<Zn::Guard> addListener(const Zn::Ptr<iCallbackBase<int, NotifyMsg>>& callback, int type = NotifyMsgTypeDictionary::instance().allMsgType) {
        return registerCallback(callback, type);
    }
};
