#pragma once

#include "WizardStagePanel.h"
#include "core/iObject.h"
#include "platform/UIString.h"

/// One stage of a wizard: it makes the stage's page afresh on every visit and gives
/// the stage's title and button captions. Held by Zn::Ptr; a stage that wants a
/// page's contents to survive a visit keeps them itself.
class iWizardStage : public iObject {
public:
    static constexpr ResId kBackText = 830;
    static constexpr ResId kNextText = 831;

    // The page, made as a child of `wizard` at `position` with `size`; null for none.
    virtual WizardStagePanel* makePage(StandardPanel& wizard, const XY<int>& size, const WidgetPosition& position) = 0;
    virtual UIString getTitle() const = 0;
    virtual UIString getBackText() const { return UIString(kBackText); }
    virtual UIString getForwardText() const { return UIString(kNextText); }
};
