#pragma once

#include "Button.h"
#include "TitleGlob.h"

/// A titled row whose control is a Button. The button fills the room right of the
/// legend unless a width is asked for, in which case it keeps that width at the
/// row's right edge. Its callback fires as a plain Button's would; with no callback
/// the message reaches the row's owner with the button as sender.
class TitleButton : public TitleGlob {
public:
    /// What a TitleButton is made from: a legend's record, and the button's label, callback and width.
    struct InitArgs : TitleGlob::InitArgs {
        UIString label;
        WidgetCallback callback;
        // 0: the button takes the width the legend leaves.
        unsigned short buttonWidth = 0;
        InitArgs() = default;
        InitArgs(const UIString& title, const UIString& label, const WidgetCallback& callback, unsigned short titleWidth, unsigned short width,
                 unsigned short height)
            : TitleGlob::InitArgs(title, width, height), label(label), callback(callback) {
            this->titleWidth = titleWidth;
        }
    };

    explicit TitleButton(const InitArgs& args);
    const char* idstring() const override { return "TitleButton"; }

    Button* getBtn() const;
    void setLabel(const UIString& label, eRedrawFlag flag = kRedraw);
    UIString getLabel() const;
    void setCallback(const WidgetCallback& callback);

private:
    Button* button_ = nullptr;
};
