#pragma once

#include "ArrowGlyph.h"
#include "Clickable.h"
#include "core/WidgetCallback.h"
#include "draw/FontDesc.h"
#include "draw/GlibDescriptions.h"
#include "image/iHostImage.h"
#include "platform/UIString.h"

#include <optional>

/// A push button with a text label and, if given, an icon or an arrow glyph at the
/// label's left (alone in the middle when there is no label). A click fires its
/// WidgetCallback: the callback when there is one, otherwise the callback's message
/// to the owner.
class Button : public Clickable, public Glib::FontUser {
public:
    /// What a Button is made from: its label and what a click does.
    struct InitArgs : GlobCreationInfo {
        WidgetCallback callback;
        UIString label;
        InitArgs() = default;
        InitArgs(const UIString& label, const WidgetCallback& callback, unsigned short width = 0, unsigned short height = 0)
            : GlobCreationInfo(width, height), callback(callback), label(label) {}
    };

    explicit Button(const InitArgs& args);
    const char* idstring() const override { return "Button"; }

    void setLabel(const UIString& label, eRedrawFlag flag = kRedraw);
    const UIString& getLabel() const { return label_; }
    void setCallback(const WidgetCallback& callback) { callback_ = callback; }
    // The message a click sends, keeping the callback and payload.
    void setMessage(const LightweightString<char>& message);
    // The label without a redraw: for a subclass that sets it just before drawing it.
    void setString(const UIString& label) { label_ = label; }
    const WidgetCallback& getCallback() const { return callback_; }
    // The first style word: kFlat shows the face only when hovered, pressed or
    // down; kFlatDropDown is flat too, for a button that drops a panel of its own.
    enum eStyle { kRaised = 0, kFlat = 1, kFlatDropDown = 2 };
    // Two style words: an eStyle, and a second word kept for the caller.
    void setStyle(int style, int style2 = 0);
    int getStyle() const { return style_; }
    int getStyle2() const { return style2_; }
    // A latching button stays down after a click until the next one (a tool that
    // is on while latched).
    void setLatching(bool latching, bool latched = false);
    bool isLatching() const { return latching_; }
    bool isLatched() const { return latching_ && state_ == kButtonDown; }
    void setLatched(bool latched, eRedrawFlag flag = kRedraw);

    // Up or down (NUMBERS.md). A latching button's click toggles it; a subclass
    // may hold a button down for as long as something it opened stands.
    enum button_state { kButtonUp = 0, kButtonDown = 1 };
    // A state by number: one that names no state counts as up. A non-zero `redraw`
    // repaints at once.
    void setState(int state, int redraw);
    button_state getState() const { return state_; }
    // Every change of state comes through here.
    virtual void switchState(button_state state, bool redraw);
    // The face's colour in a state, instead of the palette's shade for it.
    void setStateColour(button_state state, const Colour& colour);
    // The face's colour in a state: the one set for it, else the window colour.
    Colour getBackCol(button_state state) const;
    Colour getBackCol() const { return getBackCol(state_); }
    // The face and label colours while up, and while down (latched or held down).
    void setCols(const Colour& face, const Colour& text);
    void setDownCols(const Colour& face, const Colour& text);

    // A picture by path; an empty path, or one that cannot be read, leaves none.
    void setIcon(const LightweightString<wchar_t>& path, eRedrawFlag flag = kRedraw);
    const LightweightString<wchar_t>& getIconPath() const { return iconPath_; }
    bool hasIcon() const { return static_cast<bool>(icon_); }
    // A drawn arrow in the icon's place; none removes it. An icon wins over a glyph.
    void setGlyph(std::optional<ArrowGlyph::eDirection> glyph, eRedrawFlag flag = kRedraw);
    std::optional<ArrowGlyph::eDirection> getGlyph() const { return glyph_; }
    // Takes the width that shows the label and the icon or glyph; the height stays.
    void autoResize();
    // A highlighted button is drawn as the one that stands out among its
    // neighbours (the current one of a row); what that means is the subclass's.
    void setHighlighted(bool highlighted) { highlighted_ = highlighted; }
    bool isHighlighted() const { return highlighted_; }
    // Where the label sits across the button; centred by default.
    void setAlignment(Glib::eHorizontalAlign align) { align_ = align; }
    Glib::eHorizontalAlign getAlignment() const { return align_; }

    // The size that shows `label` in `font` with the usual margins.
    static XY<int> calcSizeFor(const UIString& label, const Glib::FontDesc& font = {});
    static int calcWidth(const UIString& label, const Glib::FontDesc& font = {}) { return calcSizeFor(label, font).x; }
    static int calcHeight();

    void drawBackground() override;

protected:
    void clicked() override;
    // The box the label is drawn in, right of the icon when there is one.
    virtual BoxInt labelBox() const;
    // Where the icon or glyph goes: a square at the left, or the middle when there is no label.
    BoxInt iconBox() const;
    bool hasPicture() const { return icon_ || glyph_; }
    void drawLabel(const UIString& text, const BoxInt& box) const;
    // The label's colour in the present state.
    virtual Colour textColour() const;
    // Paints the label; drawBackground calls it after the face and the picture.
    virtual void drawText();

private:
    WidgetCallback callback_;
    UIString label_;
    int style_ = 0;
    int style2_ = 0;
    bool latching_ = false;
    button_state state_ = kButtonUp;
    Colour stateColours_[2];
    bool hasStateColour_[2] = {false, false};
    std::optional<Colour> textColours_[2];
    LightweightString<wchar_t> iconPath_;
    Zn::Ptr<iHostImage> icon_;
    std::optional<ArrowGlyph::eDirection> glyph_;
    bool highlighted_ = false;
    Glib::eHorizontalAlign align_ = Glib::kAlignCentreH;
};
