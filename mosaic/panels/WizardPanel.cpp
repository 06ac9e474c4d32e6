#include "WizardPanel.h"

#include "core/WStringFromInteger.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "glob/destroyAfterCall.h"
#include "value/UIThreadCallback.h"

#include <algorithm>

WizardPanel::WizardPanel(const InitArgs& args) : StandardPanel(args), stages_(args.stages), completion_(args.completion) {
    std::erase(stages_, Zn::Ptr<iWizardStage>());
    setBorder(Border(Border::kDialogueBorder, static_cast<unsigned short>(UifStd::instance().getBorderWidth()), 15));
    addStandardWidgets(kTitleBar);
    setResizable(false);
    next_ = makeButton("wizardNext", &WizardPanel::handleNextPressed, UserBottomRight(0, 0));
    next_->setIcon(getIconPath(L"tree-collapsed"), kNoRedraw);
    back_ = makeButton("wizardBack", &WizardPanel::handleBackPressed, LeftOf(UifStd::instance().getWidgetGap(), next_));
    back_->setIcon(getIconPath(L"scroll-left"), kNoRedraw);
    tabOrder().addTabStop(*next_, TabOrderManager::kAppend);
    tabOrder().addTabStop(*back_, TabOrderManager::kAppend);
    next_->claimKbdFocus();
    if (stages_.size() == 1) back_->setVisible(false);
    setStage(0, kNoRedraw);
}

PushButton* WizardPanel::makeButton(const char* name, int (WizardPanel::*handler)(const NotifyMsg&), const WidgetPosition& at) {
    const auto h = static_cast<unsigned short>(PushButton::calcHeight());
    PushButton::InitArgs b(UIString(), WidgetCallback(makeDeferredCallback(this, handler)), h, h);
    auto* button = createWidget<PushButton>(b, at);
    button->setName(name);
    return button;
}

UIString WizardPanel::makeTitle(unsigned short stage) const {
    if (stage >= stages_.size()) return {};
    const LightweightString<wchar_t> title = stages_[stage]->getTitle().getString();
    if (stages_.size() < 2) return UIString(title);
    return UIString(Zn::WStringFromInteger(stage + 1L) + L"/" + Zn::WStringFromInteger(static_cast<long>(stages_.size())) + L" : " + title);
}

void WizardPanel::setStage(unsigned short stage, eRedrawFlag redraw) {
    if (stage == current_ || stage >= stages_.size()) return;
    current_ = stage;
    setTitle(makeTitle(stage), UifStd::instance().getTitleFont(), redraw);
    guards_.clear();
    // The old page may be the one whose notice brought us here.
    destroyAfterCall(page_);
    page_ = nullptr;
    // The page takes the user area above the row of buttons.
    const BoxInt u = getUserArea();
    const int above = u.height() - next_->height() - UifStd::instance().getWidgetGap();
    page_ = stages_[stage]->makePage(*this, XY<int>(u.width(), std::max(0, above)), UserTopLeft(0, 0));
    back_->setActive(stage != 0, kNoRedraw);
    next_->setIcon(isLastStage() ? LightweightString<wchar_t>() : getIconPath(L"tree-collapsed"), kNoRedraw);
    initButtons();
    if (page_) guards_.push_back(page_->notifier().addListener(makeDeferredCallback(this, &WizardPanel::handlePageEvent)));
    if (redraw == kRedraw) {
        calcAbsoluteWidgetPositions();
        reshapeAndDraw(XY<int>(kUnset, kUnset));
    }
}

void WizardPanel::initButtons() {
    if (current_ >= stages_.size()) return;
    next_->setLabel(stages_[current_]->getForwardText(), kNoRedraw);
    back_->setLabel(stages_[current_]->getBackText(), kNoRedraw);
    next_->autoResize();
    back_->autoResize();
    const int w = std::max(next_->width(), back_->width());
    next_->resize(w, next_->height());
    back_->resize(w, back_->height());
    calcAbsoluteWidgetPositions();
    next_->setActive(!page_ || page_->canAdvance(), kNoRedraw);
}

int WizardPanel::handleNextPressed(const NotifyMsg&) {
    if (isLastStage()) {
        // Without a callback the wizard cannot be finished from here, and stays.
        if (!completion_) return 0;
        completion_->execute(NotifyMsg());
        GlobManager::instance().requestDeletion(this);
        return 0;
    }
    if (page_ && !page_->requestCompletion()) return 0;
    setStage(static_cast<unsigned short>(current_ + 1), kRedraw);
    return 0;
}

int WizardPanel::handleBackPressed(const NotifyMsg&) {
    // Before the first stage the index wraps to one that setStage refuses.
    setStage(static_cast<unsigned short>(current_ - 1), kRedraw);
    return 0;
}

int WizardPanel::handlePageEvent(const NotifyMsg& message) {
    auto event = message.dataAs<WizardStagePanel::Event>();
    if (!event) return 0;
    if (event->kind == WizardStagePanel::Event::kRefresh) {
        initButtons();
        next_->redraw();
        back_->redraw();
    } else if (event->kind == WizardStagePanel::Event::kAdvance) {
        handleNextPressed(NotifyMsg());
    }
    return 0;
}

void WizardPanel::handleUIChange(unsigned int flags) {
    StandardPanel::handleUIChange(flags);
    if (!(flags & kLanguageChanged) || current_ >= stages_.size()) return;
    setTitle(makeTitle(current_), UifStd::instance().getTitleFont(), kRedraw);
    initButtons();
}
