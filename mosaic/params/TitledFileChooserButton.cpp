#include "TitledFileChooserButton.h"

#include "glob/GlobManager.h"
#include "platform/Paths.h"
#include "platform/ResourceStrings.h"
#include "value/UIThreadCallback.h"

TitledFileChooserButton::InitArgs::InitArgs(const Zn::Ptr<GenericParam::FileParam>& p, unsigned short buttonWidth, unsigned short width,
                                            unsigned short height)
    : TitleMenuButton::InitArgs(p ? p->getLegend() : UIString(), {}, buttonWidth, width, height), param(p) {}

TitledFileChooserButton::TitledFileChooserButton(const InitArgs& args) : TitleMenuButton(args), param_(args.param) {
    getBtn()->useSelectedForButtonDisplay(false);
    showValue();
    if (param_) setContextString(param_->getTooltip(), UIString());
}

// The browser answers to this row; with the row gone it has nobody to answer.
TitledFileChooserButton::~TitledFileChooserButton() { browser_.deleteGlob(); }

void TitledFileChooserButton::showValue() {
    const LightweightString<wchar_t> value = param_ ? param_->getValue() : LightweightString<wchar_t>();
    getBtn()->setLabel(UIString(value.empty() ? resourceStrW(kNoFileText) : stripPath(value)));
}

int TitledFileChooserButton::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if (message == DropDownMenuButton::ddBtnClickMsg) rebuildMenu();
    return 0;
}

void TitledFileChooserButton::rebuildMenu() {
    std::vector<MenuItem> items;
    const LightweightString<wchar_t> value = param_ ? param_->getValue() : LightweightString<wchar_t>();
    if (!value.empty()) items.emplace_back(UIString(stripPath(value)));
    items.emplace_back(UIString(resourceStrW(kNoFileText)), WidgetCallback(makeDeferredCallback(this, &TitledFileChooserButton::clearFile)));
    items.emplace_back(UIString(ellipsisResourceStrW(kBrowseText)), WidgetCallback(makeDeferredCallback(this, &TitledFileChooserButton::browse)));
    getBtn()->setStrings(items, MenuItemIndex(), kNoRedraw);
}

int TitledFileChooserButton::clearFile(const NotifyMsg&) {
    if (param_) param_->setValueFromString(LightweightString<wchar_t>());
    showValue();
    Drawable::update();
    return 0;
}

int TitledFileChooserButton::browse(const NotifyMsg&) {
    if (!param_ || browser_.valid()) return 0;
    FileBrowserBase::InitArgs args(param_->getLegend());
    args.filters = param_->filters;
    args.callback = WidgetCallback(makeDeferredCallback(this, &TitledFileChooserButton::handleBrowserAnswer));
    const LightweightString<wchar_t> value = param_->getValue();
    args.startDirectory = getPath(value.empty() ? param_->getDefaultValue() : value);
    browser_.reset(FileBrowser::make(args));
    // A browser over a modal panel must be modal too, or it could not be used.
    Glob* root = getRootParent(this);
    if (browser_.valid() && GlobManager::instance().isModal(root)) GlobManager::instance().addModalGlob(browser_.get(), root);
    return 0;
}

int TitledFileChooserButton::handleBrowserAnswer(const NotifyMsg& message) {
    auto answer = message.dataAs<FileBrowserBase::Answer>();
    if (!answer || answer->get().empty() || !param_) return 0;
    param_->setValueFromString(answer->get()[0]);
    showValue();
    Drawable::update();
    browser_.deleteGlob();
    return 0;
}
