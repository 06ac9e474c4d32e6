#pragma once

#include "DLList.h"
#include "core/iObject.h"

/// What servers of every value type share, so that they can be listed together and
/// told to notify.
class ValServerBase : public DLListRec, public iObject {
public:
    virtual void notifyValChanged() = 0;
    virtual void preNotifyValChanged() = 0;

    // Fixed numbers, reserved under these names in NotifyMsgTypeDictionary.
    static constexpr int valChangedMsgType_ = 2;
    static constexpr int preValChangedMsgType_ = 3;
};
