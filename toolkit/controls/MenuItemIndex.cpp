#include "MenuItemIndex.h"

#include "MenuItem.h"

int MenuItemIndex::resolve(const std::vector<MenuItem>& items) const {
    int choice = 0;
    for (const MenuItem& item : items) {
        if (!item.isChoice()) continue;
        if (byName() ? (!name.empty() && (item.text().getString() == name || item.label() == name)) : choice == index) return choice;
        ++choice;
    }
    return -1;
}
