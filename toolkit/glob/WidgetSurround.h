#pragma once

/// Decoration and spacing of a child, passed by value with it. The toolkit reads:
/// `style` 0 plain, 1 framed, 2 separated from the child above by a rule;
/// `padding` extra pixels the parent keeps clear around the child when it lays out;
/// `sides` which sides the frame or rule covers (bits 1 left, 2 right, 4 bottom, 8 top);
/// `flags` spare bits; `opacity` of the decoration; `enabled` whether it is drawn.
struct WidgetSurround {
    unsigned style = 0;
    unsigned padding = 0;
    unsigned sides = 0;
    unsigned short flags = 0;
    float opacity = 0.2f;
    bool enabled = false;

    WidgetSurround() = default;
    WidgetSurround(unsigned s, unsigned p, unsigned sd, unsigned short f, float o, bool e)
        : style(s), padding(p), sides(sd), flags(f), opacity(o), enabled(e) {}
    bool operator==(const WidgetSurround&) const = default;
};
