#pragma once

#include "PageIndexWidget.h"
#include "controls/NumericTextBox.h"

/// The development panel of the command "PageIndexWidgetTest": a box for the number
/// of pages and one page index that follows it. The GlobManager owns it once shown.
class PageIndexTestPanel : public StandardPanel {
public:
    using InitArgs = StandardPanel::InitArgs;
    static constexpr const char* kPagesChangedMsg = "pagesChanged";

    explicit PageIndexTestPanel(const InitArgs& args);
    const char* idstring() const override { return "PageIndexTestPanel"; }
    static PageIndexTestPanel* make();

    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;

private:
    NumericTextBox* count_ = nullptr;
    PageIndexWidget* index_ = nullptr;
};
