#include "PageIndexTestPanel.h"

#include "draw/UifStd.h"
#include "glob/makeTopLevel.h"
#include "platform/CommandRegistrar.h"

#include <cmath>

namespace {

const CommandRegistrar command("PageIndexWidgetTest", [](const Zn::Ptr<iObject>&) { PageIndexTestPanel::make(); });

} // namespace

PageIndexTestPanel::PageIndexTestPanel(const InitArgs& args) : StandardPanel(args) {
    setBorder(getDefaultBorder());
    addStandardWidgets(kCloseBox | kTitleBar);
    setTitle(UIString(L"PageIndexWidget Test"), UifStd::instance().getTitleFont(), kNoRedraw);
    const UifStd& u = UifStd::instance();
    const auto row = static_cast<unsigned short>(u.getRowHeight());
    NumericTextBox::InitArgs countArgs(UIString(L"1"), static_cast<unsigned short>(4 * row), row);
    count_ = createWidget<NumericTextBox>(countArgs, UserTopLeft(u.getWidgetGap(), u.getWidgetGap()));
    count_->setName("pageCount");
    count_->setValueRange(0, 0xFFFF);
    count_->requestCallback(WidgetCallback(kPagesChangedMsg), TextBoxBase::kReturnPressed);
    count_->requestCallback(WidgetCallback(kPagesChangedMsg), TextBoxBase::kFocusLost);
    PageIndexWidget::InitArgs indexArgs(1, 10, 0, row);
    index_ = createWidget<PageIndexWidget>(indexArgs, UserCentre(0, 0));
    index_->setName("pageIndex");
}

PageIndexTestPanel* PageIndexTestPanel::make() { return makeTopLevel<PageIndexTestPanel>(InitArgs(500, 400), Glob::Centre(0, 0)); }

int PageIndexTestPanel::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if (message != kPagesChangedMsg) return StandardPanel::handleMessageEvent(message, sender);
    index_->setPages(index_->getCurrentPage(), static_cast<unsigned short>(std::lround(count_->getValue())));
    return 1;
}
