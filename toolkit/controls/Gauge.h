#pragma once

#include "core/Colour.h"
#include "draw/FontDesc.h"
#include "glob/Glob.h"

/// A bar that fills from the left as a task progresses, with a message (such as
/// the time left) over it. Changes show when display() is called, so a caller
/// can set the measure and the message and paint once.
class Gauge : public Glob, public Glib::FontUser {
public:
    /// What a Gauge is made from: its size alone.
    struct InitArgs : GlobCreationInfo {
        InitArgs() = default;
        InitArgs(unsigned short width, unsigned short height) : GlobCreationInfo(width, height) {}
    };

    explicit Gauge(const InitArgs& args);
    const char* idstring() const override { return "Gauge"; }

    void setCols(const Colour& bar, const Colour& background);
    const Colour& barColour() const { return bar_; }
    // The fraction done, held to 0..1; NaN counts as nothing done.
    void setMeasure(double fraction);
    double getMeasure() const { return measure_; }
    void setMessage(const LightweightString<wchar_t>& text) { message_ = text; }
    const LightweightString<wchar_t>& getMessage() const { return message_; }
    void setMessageColour(const Colour& c) {
        messageColour_ = c;
        hasMessageColour_ = true;
    }
    void display() { redraw(); }
    // The width of the filled part for the present measure.
    int filledWidth() const;

    void drawBackground() override;

private:
    Colour bar_, background_, messageColour_;
    bool hasMessageColour_ = false;
    double measure_ = 0.0;
    LightweightString<wchar_t> message_;
};
