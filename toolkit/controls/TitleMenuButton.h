#pragma once

#include "DropDownMenuButton.h"
#include "StandardPanel.h"

/// A title at the left and a drop-down at the right, on one row. The drop-down's
/// messages (ddBtnClickMsg at once, the rest posted) go on to this widget's owner
/// with this widget as their sender; bind a value to getBtn().
class TitleMenuButton : public StandardPanel {
public:
    /// What a TitleMenuButton is made from: its legend, the drop-down's entries or rows, and its width.
    struct InitArgs : GlobCreationInfo {
        std::vector<UIString> entries;
        // Rows to use instead of the entries, when there are any.
        std::vector<MenuItem> items;
        UIString title;
        // The width of the drop-down; 0 fits it to the entries, in the room the title leaves.
        unsigned short buttonWidth = 0;
        InitArgs() = default;
        InitArgs(const UIString& title, const std::vector<UIString>& entries, unsigned short buttonWidth, unsigned short width, unsigned short height)
            : GlobCreationInfo(width, height), entries(entries), title(title), buttonWidth(buttonWidth) {}
    };

    explicit TitleMenuButton(const InitArgs& args);
    const char* idstring() const override { return "TitleMenuButton"; }

    DropDownMenuButton* getBtn() const { return button_; }
    const UIString& getTitleText() const { return titleText_; }
    void setTitleText(const UIString& title, eRedrawFlag flag = kRedraw);

    int getSelectedItem() const { return button_->getSelectedItem(); }
    LightweightString<wchar_t> getSelectedItemNameW() const { return button_->getSelectedItemNameW(); }
    virtual void setSelectedItem(const MenuItemIndex& which, eRedrawFlag flag = kRedraw) { button_->setSelectedItem(which, flag); }
    void setStrings(const std::vector<MenuItem>& rows, const MenuItemIndex& selected = {}, eRedrawFlag flag = kRedraw);
    void setStrings(const std::vector<UIString>& entries, const MenuItemIndex& selected = {}, eRedrawFlag flag = kRedraw);

    void setActive(bool active, eRedrawFlag flag = kRedraw) override;
    void resize(double width, double height) override;
    void drawBackground() override;
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;
    int handleDataMessageEvent(const LightweightString<char>& message, Glob* sender, const Zn::Ptr<iObject>& data) override;

private:
    void layoutButton();

    UIString titleText_;
    unsigned short buttonWidth_;
    DropDownMenuButton* button_ = nullptr;
};
