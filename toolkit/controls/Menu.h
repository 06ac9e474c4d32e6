#pragma once

#include "MenuItem.h"
#include "StandardPanel.h"

#include <vector>

/// A list of rows that pops up as a top-level glob of its own, above everything
/// else, for the user to choose one: the mouse highlights the row under it and a
/// release chooses it; Up and Down move over the rows that can be chosen, Return
/// chooses, Escape closes, a letter goes to the next row that begins with it. Rows
/// that do not fit the screen scroll with the wheel or the keys.
///
/// While up it is modal and has the keyboard focus; a mouse press anywhere outside
/// closes it and goes no further. A choice closes it and then fires the row's
/// WidgetCallback: the callback, or its message posted to the owner. Once popped up
/// the menu belongs to the GlobManager and deletes itself at the next safe moment
/// after it closes; its destructor posts goneMsg to the owner and gives the
/// keyboard focus back to where it was.
class Menu : public StandardPanel {
public:
    /// What a Menu is made from: its rows, an optional title, the rows highlighted and
    /// marked at first, and limits on its size.
    struct InitArgs : GlobCreationInfo {
        std::vector<MenuItem> items;
        UIString title;
        // The row highlighted at first, and the row marked as the current choice;
        // -1 for none. A highlight on a row that cannot be chosen is dropped.
        int highlighted = -1;
        int marked = -1;
        // Limits of the size; 0 leaves the width to the rows and the height to the screen.
        int minWidth = 0;
        int maxWidth = 0;
        int maxHeight = 0;
        InitArgs() = default;
        explicit InitArgs(const std::vector<MenuItem>& rows) : items(rows) {}
    };

    // Posted to the owner by a menu that has gone.
    static constexpr const char* goneMsg = "menu_poot";

    explicit Menu(const InitArgs& args);
    ~Menu() override;
    const char* idstring() const override { return "Menu"; }

    // Puts the menu on the screen with its top left corner at `topLeft`, moved as
    // little as it takes to stay on the screen. Only the first call does anything.
    void popUpAt(Glob* owner, XY<int> topLeft);
    // Below `anchor`, a box on the screen, with their left edges lined up; above it
    // when there is no room below.
    void popUpBelow(Glob* owner, const BoxInt& anchor);
    // Takes the menu off the screen with no choice made.
    void close();
    bool isOpen() const { return state_ == kOpen; }

    const std::vector<MenuItem>& items() const { return items_; }
    int highlightedRow() const { return highlighted_; }
    // Rows that cannot be chosen are not highlighted: the highlight goes.
    void setHighlightedRow(int row);
    int markedRow() const { return marked_; }
    // Chooses a row as a click would; refused for a row that cannot be chosen or a
    // menu that is not open.
    bool choose(int row);

    // The row at a point of the menu, or -1; and a row's box in the menu's own
    // coordinates, empty when the row is scrolled out of sight or does not exist.
    int rowAt(XY<int> p) const;
    BoxInt rowBox(int row) const;
    int firstVisibleRow() const { return first_; }
    int visibleRowCount() const { return visible_; }
    void scrollTo(int row);

    // The colours a menu paints its rows on, and its highlight.
    Colour rowBackground() const { return getPalette().window(kShadeLight); }
    Colour headingBackground() const { return getPalette().window(kShadeNormal); }
    Colour highlightColour() const { return getPalette().selection(kSelectionFocused); }
    // The solid triangle that menus and drop-downs point with: `size` rows of
    // pixels, the widest at `baseY`, narrowing up or down from there.
    static void paintArrow(Canvas* canvas, int centreX, int baseY, int size, bool up, const Colour& colour);

    bool acceptsKbdFocus() const override { return true; }
    int handleKeyboardEvent(int key) override;
    int handleMouseEvent(const Event& e) override;
    void handleMouseContainment(bool inside) override;
    void drawBackground() override;

protected:
    // What a choice does once the menu has closed; by default it fires the row's callback.
    virtual void handleChoice(int row);

private:
    enum State { kNew, kOpen, kClosed };

    void layout();
    void show(Glob* owner, XY<int> bottomLeft);
    // Gives up being modal, watching presses and the focus.
    void release();
    BoxInt rowsArea() const;
    int stripHeight() const;
    void paintRow(int row, const BoxInt& box) const;
    // The next row that can be chosen from `from` in direction `dir`, round the end; -1 for none.
    int nextChoosable(int from, int dir) const;
    // The row that can be chosen nearest to `row`, first in direction `dir`; -1 for none.
    int nearestChoosable(int row, int dir) const;
    int rowStartingWith(wchar_t c) const;
    void scrollBy(int rows);

    std::vector<MenuItem> items_;
    int highlighted_ = -1;
    int marked_ = -1;
    int minWidth_, maxWidth_, maxHeight_;
    int first_ = 0;
    int visible_ = 0;
    bool scrolling_ = false;
    int sideWidth_ = 0;
    State state_ = kNew;
    Glob* previousFocus_ = nullptr;
    IdStamp previousFocusStamp_;
};
