#include "ChangeBroadcaster.h"

void ChangeBroadcaster::valueChanged(const LightweightString<char>& id, const LightweightString<wchar_t>&) {
    // Held here, not read through the member: the call may disconnect this broadcaster.
    Zn::Ptr<iCallbackBase<int, NotifyMsg>> callback = callback_;
    if (callback) callback->execute(NotifyMsg(id, nullptr));
}
