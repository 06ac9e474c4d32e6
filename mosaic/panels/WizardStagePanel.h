#pragma once

#include "controls/StandardPanel.h"
#include "value/Notifier.h"

#include <cstdint>

/// The base of a wizard's pages: a panel that the wizard listens to. A page says
/// whether Next may be pressed now (canAdvance), may refuse to be left
/// (requestCompletion), and tells the wizard of a change or asks it to move on
/// through notify(). The wizard owns its page and makes a new one on each visit to
/// the stage. User-interface thread only.
class WizardStagePanel : public StandardPanel {
public:
    /// What a page sends the wizard: the kind of the notice.
    class Event : public iObject {
    public:
        enum eKind : std::int32_t { kRefresh = 0, kAdvance = 1 };
        explicit Event(std::int32_t kind) : kind(kind) {}
        std::int32_t kind;
    };
    static constexpr const char* kPageEventMsg = "WizardPageEvent";

    using StandardPanel::StandardPanel;
    const char* idstring() const override { return "WizardStagePanel"; }

    // Whether Next is active at this moment.
    virtual bool canAdvance() const { return true; }
    // Asked when the user presses Next; false stays on the page.
    virtual bool requestCompletion() { return true; }

    Notifier& notifier() { return notifier_; }
    // Tells the wizard: kRefresh when canAdvance may have changed, kAdvance to move on.
    void notify(std::int32_t kind);

private:
    Notifier notifier_;
};
