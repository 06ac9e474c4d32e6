#pragma once

#include "controls/Button.h"

#include <vector>

/// The header button of a track in a timeline: one or more stacked names (a track
/// may stand for several channels), latched while the track is selected, with an
/// optional glow behind the names while selected. Its top and bottom edges offer a
/// resize cursor; a middle click is reported to the parent as SoloSelectChanMsg,
/// posted. The resize itself is the parent's business.
class TrackButton : public Button {
public:
    /// What a TrackButton is made from: a Button's record, the label being the name.
    struct InitArgs : Button::InitArgs {
        using Button::InitArgs::InitArgs;
    };

    /// The text form in which a resize travels: "TrackBtnResize FIRST SECOND". The
    /// numbers are the parent's; this button only carries them.
    struct ResizeParams {
        int first = 0;
        int second = 0;
        ResizeParams() = default;
        ResizeParams(int a, int b) : first(a), second(b) {}
        // Text without the prefix leaves both 0: callers check first.
        explicit ResizeParams(const LightweightString<char>& text);
        LightweightString<char> asString() const;
    };

    static constexpr const char* SoloSelectChanMsg = "SoloSelectChanMsg";

    TrackButton(unsigned short width, unsigned short height, Canvas* canvas);
    TrackButton(const LightweightString<wchar_t>& name, unsigned short width, unsigned short height, Canvas* canvas);
    // A non-empty label becomes the name. A new button is selected.
    explicit TrackButton(const InitArgs& args);
    const char* idstring() const override { return "TrackButton"; }

    // Names that come after one too wide to show at full size are dropped, and the
    // font falls to a smaller size. The first name becomes the button's message.
    void setTrackName(const LightweightString<wchar_t>& name);
    void setTrackName(const std::vector<LightweightString<wchar_t>>& names);
    const std::vector<LightweightString<wchar_t>>& getTrackNames() const { return names_; }

    void setResizeAllowed(bool allowed) { resizeAllowed_ = allowed; }
    bool isResizeAllowed() const { return resizeAllowed_; }
    // Also turns the glow on, whatever the configuration says.
    void setGlowColour(const Colour& colour);
    const Colour& getGlowColour() const { return glowColour_; }
    bool isGlowEnabled() const { return glowEnabled_; }
    void setSelectedTextColour(const Colour& colour);
    void setSelected(bool selected, eRedrawFlag flag);
    bool isSelected() const { return getState() == kButtonDown; }

    // The height of one name's line; a button with no names has one line.
    int calcLineHeight() const;
    // The button's font, no taller than a line.
    Glib::FontDesc getFont() const;
    static Colour defaultGlowColour();
    // The height of the resize zones at the top and bottom edges.
    static int grabSize();

    MouseCursorID contextCursor(const XY<int>& p) const override;
    void handleMouseContainment(bool inside) override;
    int react(const Event& e) override;
    void drawBackground() override;

protected:
    void drawText() override;
    Colour textColour() const override;

private:
    void init();
    void drawGlow(int glowWidth, int glowHeight, int offset);
    // The glow's picture, made again only when its size or colours change.
    Zn::Ptr<iHostImage> glowImage(int glowWidth, int glowHeight);

    std::vector<LightweightString<wchar_t>> names_;
    Colour glowColour_;
    bool resizeAllowed_ = false;
    bool glowEnabled_ = false;
    bool mouseInside_ = false;
    // The size the names are shown at when a line is tall enough.
    int fontSize_ = 0;
    Zn::Ptr<iHostImage> glow_;
    Colour glowMadeOn_, glowMadeOf_;
};
