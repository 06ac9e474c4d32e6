#include "MenuGlob.h"

#include "Menu.h"

MenuGlob::MenuGlob() = default;

MenuGlob::~MenuGlob() { closeMenu(); }

void MenuGlob::addMenuItem(const MenuItem& item, bool active) {
    menuItems_.push_back(item);
    menuItems_.back().setActive(active);
}

void MenuGlob::clearMenu() { menuItems_.clear(); }

void MenuGlob::setMenuItemActive(std::size_t row, bool active) {
    if (row < menuItems_.size()) menuItems_[row].setActive(active);
}

Menu* MenuGlob::getOpenMenu() const {
    Menu* m = open_.get();
    return m && m->isOpen() ? m : nullptr;
}

void MenuGlob::closeMenu() {
    if (Menu* m = getOpenMenu()) m->close();
    open_.reset();
}

Menu* MenuGlob::makeMenu(const Event& e) {
    // The owner is the glob that this object is a part of.
    auto* self = dynamic_cast<Glob*>(this);
    if (!self) return nullptr;
    closeMenu();
    const GlobHandle<Glob> alive(self);
    if (!initialised_) {
        initialised_ = true;
        initialiseMenu();
    }
    reviewMenu(&e);
    // A review may act on the panel in ways that end it.
    if (!alive) return nullptr;
    std::vector<MenuItem> rows = getMenuItems(&e);
    if (rows.empty()) return nullptr;
    Menu::InitArgs args(rows);
    args.title = menuTitle_;
    args.palette = self->getPalette();
    auto* menu = new Menu(args);
    menu->popUpAt(self, e.screenPos());
    open_.reset(menu);
    return menu;
}
