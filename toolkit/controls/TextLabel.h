#pragma once

#include "draw/FontDesc.h"
#include "draw/GlibDescriptions.h"
#include "glob/Glob.h"
#include "platform/UIString.h"

/// One line of text that the user reads and does not edit, in the colours of its
/// palette: the window colour behind, the text colour in front.
class TextLabel : public Glob, public Glib::FontUser {
public:
    /// What a TextLabel is made from: its text, its size and its font.
    struct InitArgs : GlobCreationInfo {
        UIString text;
        Glib::FontDesc font;
        InitArgs() = default;
        InitArgs(const UIString& text, unsigned short width, unsigned short height, const Glib::FontDesc& font = {})
            : GlobCreationInfo(width, height), text(text), font(font) {}
    };

    explicit TextLabel(const InitArgs& args);
    const char* idstring() const override { return "TextLabel"; }

    void setText(const UIString& text, eRedrawFlag flag = kRedraw);
    const UIString& getText() const { return text_; }
    void setAlignment(Glib::eHorizontalAlign align);
    Glib::eHorizontalAlign getAlignment() const { return align_; }
    // Sets the width; the height stays.
    void fixSize(int width);
    static XY<int> calcSizeFor(const UIString& text, const Glib::FontDesc& font = {});

    void drawBackground() override;

private:
    UIString text_;
    Glib::eHorizontalAlign align_ = Glib::kAlignLeft;
};
