#pragma once

#include "core/Colour.h"
#include "core/WidgetCallback.h"
#include "draw/FontDesc.h"
#include "platform/UIString.h"

#include <optional>

// What a row of a menu is (NUMBERS.md). Only headings are treated apart: plain
// rows, selectable rows and commands (the actions of a context menu) are all chosen
// alike.
enum MenuItemType : int { kMenuItemPlain = 0, kMenuItemSelectable = 1, kMenuItemHeading = 2, kMenuItemCommand = 5 };

/// One row of a menu or a drop-down: its text, a second text shown right-aligned
/// beside it (a shortcut, a size), what choosing it does, and how it looks. A row
/// with no text at all is a gap between groups of rows. Text after "||" in the main
/// text goes to the column of the second text, so that a list of plain strings can
/// carry both.
class MenuItem {
public:
    MenuItem() = default;
    MenuItem(const UIString& text, const WidgetCallback& callback = {}, MenuItemType type = kMenuItemSelectable);
    MenuItem(const UIString& text, const WidgetCallback& callback, const Colour& textColour, MenuItemType type = kMenuItemSelectable);
    MenuItem(const UIString& text, const WidgetCallback& callback, const Colour& textColour, const Colour& background,
             MenuItemType type = kMenuItemSelectable);

    const UIString& text() const { return text_; }
    void setText(const UIString& t) { text_ = t; }
    const UIString& secondText() const { return second_; }
    void setSecondText(const UIString& t) { second_ = t; }
    const WidgetCallback& callback() const { return callback_; }
    void setCallback(const WidgetCallback& c) { callback_ = c; }
    MenuItemType type() const { return type_; }
    void setType(MenuItemType t) { type_ = t; }
    bool isActive() const { return active_; }
    void setActive(bool a) { active_ = a; }

    // Unset colours and font come from the menu's palette and the default font.
    const std::optional<Colour>& textColour() const { return textColour_; }
    void setTextColour(const Colour& c) { textColour_ = c; }
    const std::optional<Colour>& background() const { return background_; }
    void setBackground(const Colour& c) { background_ = c; }
    const std::optional<Glib::FontDesc>& font() const { return font_; }
    void setFont(const Glib::FontDesc& f) { font_ = f; }

    bool isHeading() const { return type_ == kMenuItemHeading; }
    bool isGap() const;
    // A row that counts as a choice: neither a heading nor a gap. Whether it can be
    // chosen now depends on isActive() too.
    bool isChoice() const { return !isHeading() && !isGap(); }
    bool canBeChosen() const { return active_ && isChoice(); }

    // The main text up to any column mark, and what the second column shows.
    LightweightString<wchar_t> label() const;
    LightweightString<wchar_t> sideText() const;
    // The row as one line, for a button that shows the choice: both columns of a
    // marked text, the second text left out.
    LightweightString<wchar_t> displayText() const;

private:
    UIString text_;
    UIString second_;
    WidgetCallback callback_;
    MenuItemType type_ = kMenuItemSelectable;
    bool active_ = true;
    std::optional<Colour> textColour_;
    std::optional<Colour> background_;
    std::optional<Glib::FontDesc> font_;
};
