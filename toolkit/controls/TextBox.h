#pragma once

#include "TextBoxBase.h"
#include "value/ValWidget.h"

/// A one-line editable text box that scrolls sideways to keep the caret in view.
/// Line breaks that come in by pasting become spaces.
///
/// It is a value widget of text: Return, or leaving the box after a change, asks
/// the adaptor to take the text (requestSetNewDataValue); a value coming from the
/// adaptor (setNewWidgetValue) only changes what the box shows. Binding a box fills
/// it from its adaptor at once.
class TextBox : public TextBoxBase, public ValWidget<LightweightString<wchar_t>> {
public:
    /// What a TextBox is made from: its size and its first text.
    struct InitArgs : GlobCreationInfo {
        UIString text;
        InitArgs() = default;
        InitArgs(const UIString& t, unsigned short width = 0, unsigned short height = 0) : GlobCreationInfo(width, height), text(t) {}
    };

    explicit TextBox(const InitArgs& args);
    const char* idstring() const override { return "TextBox"; }

    // Drawn dimmed after the text and not part of it: a unit such as "%" or a degree sign.
    void setDisplaySuffix(const LightweightString<wchar_t>& suffix);
    const LightweightString<wchar_t>& getDisplaySuffix() const { return suffix_; }
    // How far the text is scrolled to the left while the box has the focus, in pixels.
    int getScrollOffset() const { return scrollX_; }

    // The height of a box that shows one line of `font` with the default margin.
    static int calcHeight(const Glib::FontDesc& font = {});

    void setDataAdaptor(const Zn::Ptr<ValAdaptorBase<LightweightString<wchar_t>>>& adaptor) override;
    LightweightString<wchar_t> getWidgetValue() const override { return getString(); }
    void setNewWidgetValue(LightweightString<wchar_t>& value, eRedrawFlag redraw) override { setString(value, redraw); }
    void setEnabledState(bool enabled) override { setActive(enabled); }
    bool getEnabledState() const override { return isActive(); }

protected:
    XY<int> textOrigin() const override;
    void scrollToCaret() override;
    void commit() override;
    void drawText() override;

private:
    int suffixWidth() const;

    int scrollX_ = 0;
    LightweightString<wchar_t> suffix_;
};
