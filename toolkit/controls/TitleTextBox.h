#pragma once

#include "TextBox.h"
#include "value/ValWidget.h"

/// A text box with a legend on its left: a row of a form. The legend takes the
/// title width and the box the rest. As a value widget it is its box: an adaptor
/// given to it binds the box, and the box's commits are what it requests.
class TitleTextBox : public StandardPanel, public TabOrderableHost, public ValWidget<LightweightString<wchar_t>> {
public:
    // 1: the legend starts at the legend inset, where every titled row's does, so
    // that it lines up with the other legends of a panel; 0: it is set against the box.
    enum eStyle { kLegendAgainstBox = 0, kLegendLeft = 1 };

    /// What a TitleTextBox is made from: its legend, the box's width and first text, and the style.
    struct InitArgs : GlobCreationInfo {
        UIString title;
        // The box's width; 0 leaves the legend as wide as it needs and the box the rest.
        unsigned short entryWidth = 0;
        eStyle style = kLegendLeft;
        UIString text;
        InitArgs() = default;
        InitArgs(const UIString& t, unsigned short entry, unsigned short width, unsigned short height, eStyle s = kLegendLeft)
            : GlobCreationInfo(width, height), title(t), entryWidth(entry), style(s) {}
    };

    explicit TitleTextBox(const InitArgs& args);
    const char* idstring() const override { return "TitleTextBox"; }

    TextBox* getTextBox() const { return box_; }
    void setLegend(const UIString& legend);
    const UIString& getLegend() const { return legend_; }
    // The legend's width; the box takes what is left.
    void setTitleWidth(int width);
    int getTitleWidth() const { return titleWidth_; }
    void setStyle(eStyle style);
    eStyle getStyle() const { return style_; }
    // The legend's width for a title: the legend inset, its text and a widget gap.
    static int calcTitleWidth(const UIString& title, const Glib::FontDesc& font = {});

    // Passed on to the box.
    void setString(const LightweightString<wchar_t>& text, eRedrawFlag flag = kRedraw) { box_->setString(text, flag); }
    const LightweightString<wchar_t>& getString() const { return box_->getString(); }
    void setEditable(bool editable) { box_->setEditable(editable); }
    void setCharacters(const LightweightString<wchar_t>& characters, TextBoxBase::eCharacterRestriction r) { box_->setCharacters(characters, r); }
    void setDisplaySuffix(const LightweightString<wchar_t>& suffix) { box_->setDisplaySuffix(suffix); }
    void setObfuscatedDisplay(bool obfuscated) { box_->setObfuscatedDisplay(obfuscated); }
    void setPlaceholder(const UIString& text) { box_->setPlaceholder(text); }
    void setAlignment(TextBoxBase::TextAlignment alignment) { box_->setAlignment(alignment); }
    void requestCallback(const WidgetCallback& callback, TextBoxBase::eCallbackEvent event) { box_->requestCallback(callback, event); }
    // A null target is this widget's owner, not the widget itself.
    void requestCallback(const LightweightString<char>& message, EventHandler* target, TextBoxBase::eCallbackEvent event);

    void setDataAdaptor(const Zn::Ptr<ValAdaptorBase<LightweightString<wchar_t>>>& adaptor) override { box_->setDataAdaptor(adaptor); }
    Zn::Ptr<ValAdaptorBase<LightweightString<wchar_t>>> getDataAdaptor() const override { return box_->getDataAdaptor(); }
    LightweightString<wchar_t> getWidgetValue() const override { return box_->getString(); }
    void setNewWidgetValue(LightweightString<wchar_t>& value, eRedrawFlag redraw) override { box_->setNewWidgetValue(value, redraw); }
    bool requestSetNewDataValue(const LightweightString<wchar_t>& value, DataChangeType type) override {
        return box_->requestSetNewDataValue(value, type);
    }
    void setEnabledState(bool enabled) override { setActive(enabled); }
    bool getEnabledState() const override { return isActive(); }

    std::vector<TabOrderable*> getTabStops() override { return {box_}; }
    bool claimKbdFocus() override { return box_->claimKbdFocus(); }
    void setActive(bool active, eRedrawFlag flag = kRedraw) override;
    void setPalette(const Palette& palette) override;
    void setFont(const Glib::FontDesc& font) override;
    void resize(double width, double height) override;
    void drawBackground() override;

private:
    void layoutBox();

    TextBox* box_ = nullptr;
    UIString legend_;
    int titleWidth_ = 0;
    eStyle style_;
};
