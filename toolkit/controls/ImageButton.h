#pragma once

#include "Button.h"

/// A button that shows a picture (an icon by path), and its label, if any, at
/// the picture's right. A picture that cannot be read leaves a plain button.
class ImageButton : public Button {
public:
    /// What an ImageButton is made from: a Button's record and the path of its picture.
    struct InitArgs : Button::InitArgs {
        LightweightString<wchar_t> image;
        InitArgs() = default;
        InitArgs(const LightweightString<wchar_t>& image, const WidgetCallback& callback, unsigned short width, unsigned short height)
            : Button::InitArgs(UIString(), callback, width, height), image(image) {}
    };

    explicit ImageButton(const InitArgs& args);
    ~ImageButton() override = default;
    const char* idstring() const override { return "ImageButton"; }

    void setImage(const LightweightString<wchar_t>& path, eRedrawFlag flag = kRedraw) { setIcon(path, flag); }
    const LightweightString<wchar_t>& getImagePath() const { return getIconPath(); }
    bool hasImage() const { return hasIcon(); }
};
