#include "PageIndexWidget.h"

#include "core/MethodCallback.h"
#include "core/WStringFromInteger.h"
#include "draw/UifStd.h"
#include "glob/Messaging.h"
#include "glob/UpdateDeferrer.h"
#include "glob/destroyAfterCall.h"

#include <algorithm>
#include <cstdlib>

namespace {

using Handler = int (PageIndexWidget::*)(const NotifyMsg&);

Zn::Ptr<iCallbackBase<int, NotifyMsg>> call(PageIndexWidget* w, Handler h) {
    return Zn::Ptr<iCallbackBase<int, NotifyMsg>>(new MethodCallback<PageIndexWidget, NotifyMsg, int>(w, h));
}

LightweightString<char> decimal(long value) { return LightweightString<char>(std::to_string(value).c_str()); }

} // namespace

PageIndexWidget::PageIndexWidget(const InitArgs& args)
    : StandardPanel(StandardPanel::InitArgs(args, Border(Border::kNoBorder, 0, 15))), maxVisible_(std::max<unsigned char>(1, args.maxVisible)),
      callback_(args.callback), message_(args.message) {
    prev_ = makeEndButton(L"<", &PageIndexWidget::handlePrevClick, BottomLeft(0, 0));
    next_ = makeEndButton(L">", &PageIndexWidget::handleNextClick, BottomRight(0, 0));

    makeStrip(calcWidth(args.currentPage, args.numPages, maxVisible_));

    TextLabel::InitArgs labelArgs(args.emptyLabel, static_cast<unsigned short>(width()), static_cast<unsigned short>(height()),
                                  Glib::FontDesc(getZnUtilityFontName(), getZnUtilityFontSize()));
    empty_ = createWidget<TextLabel>(labelArgs, BottomLeft(0, 0));
    empty_->setAlignment(Glib::kAlignCentreH);
    empty_->setName("pageIndexEmpty");

    setPages(args.currentPage, args.numPages);
    // With no pages the strip is not rebuilt, so the end buttons are set here too.
    updatePrevAndNextButtons(kNoRedraw);
    showStripOrLabel();
}

void PageIndexWidget::makeStrip(int width) {
    WidgetHost::InitArgs args(static_cast<unsigned short>(std::max(1, width)), static_cast<unsigned short>(UifStd::instance().getRowHeight()));
    strip_ = createWidget<WidgetHost>(args, Centre(0, 0));
    strip_->setName("pageStrip");
}

Button* PageIndexWidget::makeEndButton(const wchar_t* text, Handler handler, const WidgetPosition& at) {
    const auto row = static_cast<unsigned short>(UifStd::instance().getRowHeight());
    Button::InitArgs b(UIString(text), WidgetCallback(call(this, handler)), row, row);
    auto* button = createWidget<Button>(b, at);
    button->setName(text[0] == L'<' ? "pagePrev" : "pageNext");
    return button;
}

unsigned short PageIndexWidget::calcFirstPageIndex(unsigned short current, unsigned short total, unsigned char maxVisible) {
    const int half = maxVisible / 2;
    int first = half >= current ? 0 : current - half;
    if (maxVisible < total && first + maxVisible > total) first = total - maxVisible;
    return static_cast<unsigned short>(first);
}

int PageIndexWidget::calcButtonWidth(unsigned short page) {
    // Single-digit pages are as wide as "10", so the strip does not jitter.
    const long shown = std::max(page + 1L, 10L);
    return Glib::measureText(Zn::WStringFromInteger(shown), UifStd::instance().getDefaultFont()).x + UifStd::instance().getRowHeight();
}

int PageIndexWidget::calcWidthInternal(unsigned short first, unsigned short count) {
    int w = 0;
    for (int i = 0; i < count; ++i) w += calcButtonWidth(static_cast<unsigned short>(first + i));
    return w;
}

int PageIndexWidget::calcWidth(unsigned short current, unsigned short total, unsigned char maxVisible) {
    return calcWidthInternal(calcFirstPageIndex(current, total, maxVisible), std::min<unsigned short>(maxVisible, total));
}

Button* PageIndexWidget::buttonOf(unsigned short page) const {
    if (page < first_ || page - first_ >= static_cast<int>(numbers_.size())) return nullptr;
    return numbers_[page - first_];
}

void PageIndexWidget::latch(unsigned short page, bool on) {
    Button* b = buttonOf(page);
    if (!b) return;
    // The current page's button cannot be clicked again.
    b->setLatched(on);
    b->setIgnoreMouseClicks(on);
}

bool PageIndexWidget::setPagesInternal(unsigned short current, unsigned short total) {
    if (current == current_ && total == total_ && !numbers_.empty()) {
        showStripOrLabel();
        return false;
    }
    const unsigned short count = std::min<unsigned short>(maxVisible_, total);
    const unsigned short first = calcFirstPageIndex(current, total, maxVisible_);
    if (first == first_ && count == numbers_.size()) {
        latch(current_, false);
        current_ = current;
        total_ = total;
        latch(current_, true);
        showStripOrLabel();
        return false;
    }
    // A new strip takes the old one's place, and the old one goes with all its
    // buttons at once; the button that was clicked may be among them, its callback
    // still running.
    destroyAfterCall(strip_);
    numbers_.clear();
    makeStrip(calcWidthInternal(first, count));
    first_ = first;
    current_ = current;
    total_ = total;
    const auto row = static_cast<unsigned short>(UifStd::instance().getRowHeight());
    const Palette& p = getPalette();
    for (int i = 0; i < count; ++i) {
        const auto page = static_cast<unsigned short>(first + i);
        Button::InitArgs b(UIString(Zn::WStringFromInteger(page + 1L)),
                           WidgetCallback(call(this, &PageIndexWidget::handleNumberClick), decimal(page)),
                           static_cast<unsigned short>(calcButtonWidth(page)), row);
        auto* button = strip_->createWidget<Button>(b, numbers_.empty() ? BottomLeft(0, 0) : RightOf(0, numbers_.back()));
        button->setLatching(true, page == current);
        button->setMessageOnMouseUp(true);
        button->setDownCols(p.window(kShadeNormal), p.subheadingText());
        button->setIgnoreMouseClicks(page == current);
        numbers_.push_back(button);
    }
    showStripOrLabel();
    return true;
}

void PageIndexWidget::showStripOrLabel() {
    empty_->setVisible(numbers_.empty());
    strip_->setVisible(!numbers_.empty());
}

void PageIndexWidget::setPages(unsigned short current, unsigned short total) {
    if (current >= total && total != 0) current = static_cast<unsigned short>(total - 1);
    // A rebuilt strip paints once, not once for every button made and removed.
    const Glib::UpdateDeferrer oneDraw;
    if (!setPagesInternal(current, total)) return;
    updatePrevAndNextButtons(kNoRedraw);
    strip_->resize(std::max(1, calcWidthInternal(first_, static_cast<unsigned short>(numbers_.size()))), strip_->height());
    calcAbsoluteWidgetPositions();
    reshapeAndDraw(XY<int>(kUnset, kUnset));
}

void PageIndexWidget::setCurrentPage(unsigned short page) {
    if (page == current_) return;
    latch(current_, false);
    current_ = page;
    latch(current_, true);
    updatePrevAndNextButtons(kRedraw);
}

void PageIndexWidget::setEmptyLabel(const UIString& text) { empty_->setText(text); }

void PageIndexWidget::updatePrevAndNextButtons(eRedrawFlag flag) {
    prev_->setActive(current_ != 0, flag);
    next_->setActive(current_ + 1 < total_, flag);
}

int PageIndexWidget::handleNumberClick(const NotifyMsg& message) {
    const long page = std::strtol(message.name().c_str(), nullptr, 10);
    if (page < 0 || page > 0xFFFF) return 0;
    if (page == current_) {
        // Only the keys reach the current page's button; its click undid the latch.
        latch(current_, true);
        return 0;
    }
    setPages(static_cast<unsigned short>(page), total_);
    informOwner();
    return 0;
}

int PageIndexWidget::handlePrevClick(const NotifyMsg&) {
    if (current_ == 0) return 0;
    const int n = static_cast<int>(numbers_.size());
    // In the right-hand part of the last window moving left does not scroll.
    if (current_ > total_ - n / 2)
        setCurrentPage(static_cast<unsigned short>(current_ - 1));
    else
        setPages(static_cast<unsigned short>(current_ - 1), total_);
    informOwner();
    return 0;
}

int PageIndexWidget::handleNextClick(const NotifyMsg&) {
    if (current_ + 1 >= total_) return 0;
    const int n = static_cast<int>(numbers_.size());
    // In the left-hand part of the first window moving right does not scroll.
    if (current_ < n / 2)
        setCurrentPage(static_cast<unsigned short>(current_ + 1));
    else
        setPages(static_cast<unsigned short>(current_ + 1), total_);
    informOwner();
    return 0;
}

void PageIndexWidget::informOwner() {
    const Zn::Ptr<iObject> payload(new PageData(current_));
    if (callback_)
        callback_->execute(NotifyMsg(message_, payload));
    else if (Glob* owner = parent())
        sendMessageWithData(message_, owner, payload, nullptr);
}

void PageIndexWidget::resize(double width, double height) {
    StandardPanel::resize(width, height);
    if (empty_) empty_->resize(this->width(), this->height());
}

std::vector<TabOrderable*> PageIndexWidget::getTabStops() {
    std::vector<TabOrderable*> stops{prev_};
    stops.insert(stops.end(), numbers_.begin(), numbers_.end());
    stops.push_back(next_);
    return stops;
}
