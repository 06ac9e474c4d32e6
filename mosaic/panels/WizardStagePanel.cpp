#include "WizardStagePanel.h"

void WizardStagePanel::notify(std::int32_t kind) {
    notifier_.issueNotification(NotifyMsg(kPageEventMsg, Zn::Ptr<iObject>(new Event(kind))),
                                NotifyMsgTypeDictionary::instance().typeOf(kPageEventMsg));
}
