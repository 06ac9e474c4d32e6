#pragma once

#include "ColEyeDropBase.h"
#include "CursorCapturer.h"

/// The eye dropper: a button that, pressed and released, lets the user take a
/// colour off any part of the screen, and sends it to its parent as the message
/// "colour_eye_dropper HSV <h> <s> <v / 255>" (a ColourPicker parent takes it).
/// User-interface thread only.
class colourEyeDropper : public CursorCapturer, public ColEyeDropBase {
public:
    /// What an eye dropper is made from: an image button's record with the dropper's icon and message.
    struct InitArgs : ImageButton::InitArgs {
        static constexpr const char* clickMsg = "Colour Eye Dropper";
        InitArgs(unsigned short width, unsigned short height);
        InitArgs(const UIString& label, unsigned short width, unsigned short height);
    };

    explicit colourEyeDropper(const InitArgs& args) : CursorCapturer(args) {}
    const char* idstring() const override { return "colourEyeDropper"; }
    int react(const Event& e) override { return CursorCapturer::react(e); }
    void evaluatePixelAndNotify(unsigned short x, unsigned short y) override;
};
