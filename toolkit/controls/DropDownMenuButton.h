#pragma once

#include "DropDownButtonInitArgs.h"
#include "MenuItem.h"
#include "MenuItemIndex.h"
#include "value/ValWidget.h"

#include <vector>

class Menu;

/// A button that shows one choice of a list and, when clicked, opens the list as a
/// menu below itself (above it when there is no room). Its value is the index of the
/// selected choice among the rows that are choices (-1 for none); a bound button
/// shows its adaptor's value and asks the adaptor to change it.
///
/// Opening calls ddBtnClickMsg on the owner at once, so that the owner may rebuild the
/// rows with setStrings before the menu is made. A choice then, in this order, sets or
/// requests the new value, fires the row's own callback and fires the button's
/// callback, which by default posts dropDownMenuButtonMsg to the owner. Up and Down
/// on the focused button choose the neighbouring choice the same way.
class DropDownMenuButton : public Button, public ValWidget<int> {
public:
    /// What a DropDownMenuButton is made from: its rows (a list of strings makes one
    /// row of each) and the choice selected first.
    struct InitArgs : DropDownButtonInitArgs {
        std::vector<MenuItem> items;
        MenuItemIndex selected;
        InitArgs() = default;
        InitArgs(const std::vector<UIString>& entries, unsigned short width = 0, unsigned short height = 0);
        InitArgs(const std::vector<MenuItem>& rows, unsigned short width = 0, unsigned short height = 0);
    };

    static constexpr const char* ddBtnClickMsg = "ddBtnClickMsg";
    static constexpr const char* dropDownMenuButtonMsg = "dropDownMenuButtonMsg";

    explicit DropDownMenuButton(const InitArgs& args);
    // Closes the menu if it is open.
    ~DropDownMenuButton() override;
    const char* idstring() const override { return "DropDownMenuButton"; }

    // New rows, with the choice that `selected` picks (none when it picks nothing).
    // Only what is shown changes: nothing fires and the adaptor is not asked.
    void setStrings(const std::vector<MenuItem>& rows, const MenuItemIndex& selected = {}, eRedrawFlag flag = kRedraw);
    void setStrings(const std::vector<UIString>& entries, const MenuItemIndex& selected = {}, eRedrawFlag flag = kRedraw);
    const std::vector<MenuItem>& getItems() const { return items_; }
    int numChoices() const;

    // The selected choice, -1 for none, and its text.
    int getSelectedItem() const { return selected_; }
    LightweightString<wchar_t> getSelectedItemNameW() const;
    // Shows the choice that `which` picks; one that picks nothing leaves the
    // selection as it is. Neither fires nor asks the adaptor.
    virtual void setSelectedItem(const MenuItemIndex& which, eRedrawFlag flag = kRedraw);
    // With false the button keeps the label given by setLabel whatever is selected.
    void useSelectedForButtonDisplay(bool use);
    bool usesSelectedForButtonDisplay() const { return useSelected_; }

    // Opens the menu; true when it is open. Closing it chooses nothing.
    bool displayMenu();
    void removeMenuFromScreen();
    Menu* getMenu() const;
    bool isMenuOpen() const { return getMenu() != nullptr; }

    // The width of a button that shows the widest of the entries in `font` beside its arrow.
    static int calcWidth(const std::vector<UIString>& entries, const Glib::FontDesc& font = {});
    static int calcWidth(const std::vector<MenuItem>& rows, const Glib::FontDesc& font = {});
    static int calcWidth(const UIString& entry, const Glib::FontDesc& font = {});

    int getWidgetValue() const override { return selected_; }
    // A value that is no choice shows none.
    void setNewWidgetValue(int& value, eRedrawFlag flag) override;
    void setEnabledState(bool enabled) override { setActive(enabled); }
    bool getEnabledState() const override { return isActive(); }

    int react(const Event& e) override;
    void drawBackground() override;

protected:
    void clicked() override;
    int handleKey(int key) override;
    BoxInt labelBox() const override;
    // The user chose `choice` (counted among the choices).
    virtual void handleChoice(int choice);

private:
    friend class DropDownMenu;

    void showSelection(eRedrawFlag flag);
    // The row of a choice, and the choice of a row; -1 when there is none.
    int rowOfChoice(int choice) const;
    int choiceOfRow(int row) const;
    static int arrowZone();

    std::vector<MenuItem> items_;
    int selected_ = -1;
    bool useSelected_ = true;
    Menu* menu_ = nullptr;
    IdStamp menuStamp_;
};
