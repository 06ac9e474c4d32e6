#pragma once

#include "controls/Button.h"
#include "controls/StandardPanel.h"
#include "controls/TextLabel.h"
#include "core/NotifyMsg.h"
#include "core/WrappedData.h"
#include "core/iCallbackBase.h"
#include "frame/WidgetHost.h"

#include <vector>

/// A pager: a "<" button, a strip of numbered page buttons and a ">" button. With
/// more pages than fit, the strip shows a window of them centred on the current page
/// as far as the ends allow; with no pages an empty label takes its place. A click
/// tells the callback, or else the parent, of the new page (zero-based) as a
/// WrappedData<unsigned short>; changes made by calls from code tell nobody.
/// User-interface thread only; the widget owns its buttons.
class PageIndexWidget : public StandardPanel, public TabOrderableHost {
public:
    /// What a PageIndexWidget is made from: the pages, how many buttons at most, the
    /// empty label's text and whom a click tells.
    struct InitArgs : GlobCreationInfo {
        unsigned short numPages = 0;
        unsigned char maxVisible = 10;
        unsigned short currentPage = 0;
        UIString emptyLabel{kNoPagesText};
        Zn::Ptr<iCallbackBase<int, NotifyMsg>> callback;
        LightweightString<char> message{kPageChangedMsg};
        InitArgs() = default;
        InitArgs(unsigned short numPages, unsigned char maxVisible, unsigned short width, unsigned short height)
            : GlobCreationInfo(width, height), numPages(numPages), maxVisible(maxVisible) {}
    };
    using PageData = WrappedData<unsigned short>;
    static constexpr const char* kPageChangedMsg = "PageIndexChanged";
    static constexpr ResId kNoPagesText = 832;

    explicit PageIndexWidget(const InitArgs& args);
    const char* idstring() const override { return "PageIndexWidget"; }

    // Clamps current to the last page; notifies nobody.
    void setPages(unsigned short current, unsigned short total);
    // Moves the highlight within the strip as it stands; notifies nobody.
    void setCurrentPage(unsigned short page);
    void setEmptyLabel(const UIString& text);

    unsigned short getCurrentPage() const { return current_; }
    unsigned short getNumPages() const { return total_; }
    unsigned short getFirstPage() const { return first_; }
    const std::vector<Button*>& numberButtons() const { return numbers_; }
    Button* prevButton() const { return prev_; }
    Button* nextButton() const { return next_; }
    TextLabel* emptyLabel() const { return empty_; }

    static unsigned short calcFirstPageIndex(unsigned short current, unsigned short total, unsigned char maxVisible);
    static int calcButtonWidth(unsigned short page);
    static int calcWidthInternal(unsigned short first, unsigned short count);
    // The strip's width; the end buttons are not counted.
    static int calcWidth(unsigned short current, unsigned short total, unsigned char maxVisible);

    void resize(double width, double height) override;
    std::vector<TabOrderable*> getTabStops() override;

private:
    bool setPagesInternal(unsigned short current, unsigned short total);
    void updatePrevAndNextButtons(eRedrawFlag flag);
    void showStripOrLabel();
    void makeStrip(int width);
    void informOwner();
    void latch(unsigned short page, bool on);
    Button* buttonOf(unsigned short page) const;
    Button* makeEndButton(const wchar_t* text, int (PageIndexWidget::*handler)(const NotifyMsg&), const WidgetPosition& at);
    int handleNumberClick(const NotifyMsg& message);
    int handlePrevClick(const NotifyMsg& message);
    int handleNextClick(const NotifyMsg& message);

    std::vector<Button*> numbers_;
    Button* prev_ = nullptr;
    Button* next_ = nullptr;
    WidgetHost* strip_ = nullptr;
    TextLabel* empty_ = nullptr;
    unsigned short first_ = 0;
    unsigned short current_ = 0;
    unsigned short total_ = 0;
    unsigned char maxVisible_;
    Zn::Ptr<iCallbackBase<int, NotifyMsg>> callback_;
    LightweightString<char> message_;
};
