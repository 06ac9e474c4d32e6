#pragma once

#include "MenuItem.h"
#include "core/IdStamp.h"

#include <vector>

class Event;
class Glob;
class Menu;

/// The menu side of a panel: the rows that it offers on a right click (its context
/// menu) and the hooks through which it brings them up to date first. Every
/// StandardPanel is one. The menu's owner is the panel, so rows without a callback
/// send their message to it; the panel is told "menu_poot" when the menu has gone.
class MenuGlob {
public:
    MenuGlob() = default;
    // The open menu is tied to this object; a copy would have none.
    MenuGlob(const MenuGlob&) = delete;
    MenuGlob& operator=(const MenuGlob&) = delete;
    // Closes the menu if it is still open.
    virtual ~MenuGlob();

    void addMenuItem(const MenuItem& item, bool active = true);
    void clearMenu();
    const std::vector<MenuItem>& menuItems() const { return menuItems_; }
    // Out-of-range rows are ignored.
    void setMenuItemActive(std::size_t row, bool active);
    // A title shown above the rows; empty for none.
    void setMenuTitle(const UIString& title) { menuTitle_ = title; }
    const UIString& getMenuTitle() const { return menuTitle_; }

    // Called once, the first time a menu is wanted: the place for rows that never change.
    virtual void initialiseMenu() {}
    // Called before every opening, with the event that asks for the menu, so that the
    // rows can follow the present state (or the place clicked).
    virtual void reviewMenu(const Event*) {}
    // The rows to show; by default those added.
    virtual std::vector<MenuItem> getMenuItems(const Event*) { return menuItems_; }
    // Whether this event may open a menu at all.
    virtual bool canMakeMenu(const Event&) { return true; }
    // Opens the menu at the event's screen position, after initialiseMenu (once) and
    // reviewMenu. No rows, no menu: returns null.
    virtual Menu* makeMenu(const Event& e);

    // The menu that makeMenu opened, while it is open.
    Menu* getOpenMenu() const;
    void closeMenu();

private:
    std::vector<MenuItem> menuItems_;
    UIString menuTitle_;
    bool initialised_ = false;
    Menu* open_ = nullptr;
    IdStamp openStamp_;
};
