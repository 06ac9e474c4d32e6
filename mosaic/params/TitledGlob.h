#pragma once

#include "controls/TitleGlob.h"
#include "draw/UifStd.h"
#include "glob/WidgetSurround.h"

#include <algorithm>

/// A parameter row for any control T: the legend at the left, the control made from
/// its own record at the right edge, centred vertically and never taller than the row.
template <class T>
class TitledGlob : public TitleGlob {
public:
    /// What a TitledGlob is made from: a legend's record, the control's own record and its surround.
    struct InitArgs : TitleGlob::InitArgs {
        typename T::InitArgs widgetArgs;
        WidgetSurround surround;
        InitArgs() = default;
        InitArgs(const UIString& title, const typename T::InitArgs& control, unsigned short width, unsigned short height)
            : TitleGlob::InitArgs(title, width, height), widgetArgs(control) {}
    };

    explicit TitledGlob(const InitArgs& args) : TitleGlob(args) {
        typename T::InitArgs a(args.widgetArgs);
        if (a.height > height()) a.height = static_cast<unsigned short>(height());
        // The control takes what the legend leaves, however little that is.
        if (a.width == 0) a.width = static_cast<unsigned short>(std::max(0, width() - calcTitleWidth(args.title, args.font)));
        const int x = args.surround.style == 0 ? 0 : args.surround.style == 2 ? 2 : 1;
        const WidgetPosition at = Glob::UserBottomRight(x, (height() - a.height) / 2);
        if (a.width == 0) a.width = static_cast<unsigned short>(getUserArea().width());
        a.canvas = canvas();
        a.palette = getPalette();
        widget = addChild(new T(a), at, args.surround);
        id = "Titled";
        id += widget->idstring();
    }

    const char* idstring() const override { return id.c_str(); }
    T* control() const { return static_cast<T*>(widget); }

    Glob* widget = nullptr;
    // Marks rows the builder made for sliders; the row itself does not read it.
    bool sliderRow = false;
    LightweightString<char> id;
};
