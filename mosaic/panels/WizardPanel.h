#pragma once

#include "controls/PushButton.h"
#include "controls/StandardPanel.h"
#include "core/Guard.h"
#include "core/NotifyMsg.h"
#include "core/iCallbackBase.h"
#include "iWizardStage.h"

#include <list>
#include <vector>

/// A panel that leads the user through a fixed list of stages, one page at a time,
/// with Back and Next of equal width at the bottom. Each visit to a stage makes a
/// new page; the page may disable Next, refuse to be left, or ask to move on. Next
/// on the last stage calls the completion callback and deletes the wizard; with no
/// callback the wizard stays. Going back is never refused. The GlobManager owns the
/// wizard once it is realized; the wizard owns its page. User-interface thread only.
class WizardPanel : public StandardPanel {
public:
    /// What a WizardPanel is made from: a panel's record, the stages and the
    /// completion callback (may be null).
    struct InitArgs : StandardPanel::InitArgs {
        std::vector<Zn::Ptr<iWizardStage>> stages;
        Zn::Ptr<iCallbackBase<int, NotifyMsg>> completion;
        InitArgs() = default;
        InitArgs(unsigned short width, unsigned short height) : StandardPanel::InitArgs(width, height) {}
    };
    // The current stage before the first is set: no valid index.
    static constexpr unsigned short kNoStage = 0xFFFF;

    explicit WizardPanel(const InitArgs& args);
    const char* idstring() const override { return "WizardPanel"; }

    // Out of range, or the stage on show, does nothing.
    void setStage(unsigned short stage, eRedrawFlag redraw);
    unsigned short getStage() const { return current_; }
    UIString makeTitle(unsigned short stage) const;
    WizardStagePanel* getPage() const { return page_; }
    PushButton* nextButton() const { return next_; }
    PushButton* backButton() const { return back_; }

    void handleUIChange(unsigned int flags) override;

private:
    void initButtons();
    PushButton* makeButton(const char* name, int (WizardPanel::*handler)(const NotifyMsg&), const WidgetPosition& at);
    bool isLastStage() const { return current_ + 1 == static_cast<int>(stages_.size()); }
    int handleNextPressed(const NotifyMsg& message);
    int handleBackPressed(const NotifyMsg& message);
    int handlePageEvent(const NotifyMsg& message);

    std::vector<Zn::Ptr<iWizardStage>> stages_;
    unsigned short current_ = kNoStage;
    WizardStagePanel* page_ = nullptr;
    PushButton* next_ = nullptr;
    PushButton* back_ = nullptr;
    Zn::Ptr<iCallbackBase<int, NotifyMsg>> completion_;
    std::list<Zn::Ptr<Zn::Guard>> guards_;
};
