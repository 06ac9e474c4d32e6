#pragma once

#include "StandardPanel.h"
#include "draw/FontDesc.h"
#include "platform/UIString.h"

#include <vector>

/// Pages behind a row of tabs along the top; one page shows at a time.
///
/// A tab is added with addTab and its page with addPageForTab; the dialogue owns
/// the pages, sizes each to the page area (pageBox()) and shows only the page of
/// the selected tab. A click on a tab, or Ctrl+Tab and Ctrl+Shift+Tab anywhere in
/// the dialogue (with kKeyboardTabs), changes the selection; a change made by the user posts
/// kTabChangedMsg to the owner (sendMessage, so it arrives after the page shows).
/// Tab indices out of range are ignored, never an error.
class TabbedDialogue : public StandardPanel {
public:
    static constexpr const char* kTabChangedMsg = "TabChanged";
    // Flag bits of InitArgs::flags and tabHeight (NUMBERS.md): tabs that share the
    // width evenly instead of each fitting its title; a frame around the pages, open
    // under the selected tab; Ctrl+Tab to change tabs; tall tabs. Other bits are ignored.
    enum Flags : unsigned { kEvenTabs = 4, kFramedPages = 16, kKeyboardTabs = 32, kTallTabs = 128 };
    static constexpr unsigned kStandardTabs = kFramedPages | kKeyboardTabs;
    // The look of a tab: a text.
    enum eTabWidget { kTextTab = 0 };

    /// What a TabbedDialogue is made from: its size and its flags.
    struct InitArgs : StandardPanel::InitArgs {
        unsigned flags = kStandardTabs;
        InitArgs() = default;
        InitArgs(unsigned short width, unsigned short height, unsigned flags = kStandardTabs)
            : StandardPanel::InitArgs(width, height), flags(flags) {}
    };

    explicit TabbedDialogue(const InitArgs& args);
    const char* idstring() const override { return "TabbedDialogue"; }

    // The height of the row of tabs for these flags.
    static int tabHeight(unsigned int flags);
    // The width of the frame's line around the page area.
    static int calcBorderSize(unsigned int flags = kStandardTabs);
    // The dialogue's height that gives a page of `contentHeight` under tabs of `tabHeight`.
    static int calcHeightForContents(unsigned short contentHeight, unsigned int tabHeight);

    // Appends a tab; returns its index. The first tab added is selected.
    int addTab(const UIString& title, eTabWidget look = kTextTab);
    // Gives the tab its page, which becomes a child of the dialogue; a page the tab
    // had before is destroyed. A tab index past the end deletes nothing and takes
    // nothing: the caller keeps the page.
    bool addPageForTab(unsigned char tab, Glob* page);
    // Removes a tab and its page; the page is deleted with `destroy`, otherwise it
    // is handed back unparented to the caller, who then owns it.
    Glob* removePage(unsigned short tab, bool destroy, eRedrawFlag flag = kRedraw);

    int numTabs() const { return static_cast<int>(tabs_.size()); }
    // -1 when there are no tabs.
    int getSelectedTab() const { return selected_; }
    // Selects a tab and shows its page; `notify` posts kTabChangedMsg as a user's change would.
    void selectTab(int tab, eRedrawFlag flag = kRedraw, bool notify = false);
    Glob* getPage(int tab) const;
    UIString getTabTitle(int tab) const;
    void setTabTitle(int tab, const UIString& title);

    // The row of tabs, one tab's box in it, and the area the pages take.
    BoxInt tabsBox() const;
    BoxInt tabBox(int tab) const;
    BoxInt pageBox() const;
    // The tab under a point of the dialogue, or -1.
    int tabAt(const XY<int>& p) const;

    void resize(double width, double height) override;
    void setActive(bool active, eRedrawFlag flag = kRedraw) override;
    void drawBackground() override;
    void drawBorder() override;
    int handleMouseEvent(const Event& e) override;
    int handleKeyboardEvent(int keyCode) override;
    int intercept(const Event& e) override;
    // The dialogue takes the keys when the control that had them goes with its page.
    bool acceptsKbdFocus() const override { return isActive() && isVisible(); }

private:
    struct Tab {
        UIString title;
        Glob* page = nullptr;
        IdStamp stamp;
    };
    Glob* livePage(const Tab& t) const;
    void fitPages();
    void userSelects(int tab);
    // Ctrl+Tab (Shift: backwards); false when there is nothing to step to.
    bool stepTab(unsigned modifiers);

    std::vector<Tab> tabs_;
    int selected_ = -1;
    unsigned flags_;
    Glib::FontDesc font_;
};
