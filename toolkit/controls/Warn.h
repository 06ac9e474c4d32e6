#pragma once

#include "Message.h"

/// A question or warning: a Message with a row of buttons of its own and a stripe
/// of the palette's warning colour down its left side. Each button fires its own
/// callback (with no callback, posts the callback's message to the client) and
/// closes the box; Return presses the first button, Escape closes and fires none.
class Warn : public Message {
public:
    /// What a Warn is made from: a Message's record and a label and callback for each of its buttons.
    struct InitArgs : Message::InitArgs {
        std::vector<UIString> labels;
        std::vector<WidgetCallback> callbacks;
        InitArgs() = default;
        InitArgs(const UIString& title, const UIString& text, const std::vector<UIString>& labels, const std::vector<WidgetCallback>& callbacks)
            : Message::InitArgs(title, text), labels(labels), callbacks(callbacks) {}
    };

    explicit Warn(const InitArgs& args);
    const char* idstring() const override { return "warn"; }

    // The stripe of warning colour.
    BoxInt stripeBox() const;

    void drawBackground() override;
};

// Shows a warning with buttons, centred on the screen. Labels without callbacks
// only close it; no labels give one OK button.
Warn* make_warn(const UIString& title, const UIString& text, const std::vector<UIString>& labels, const std::vector<WidgetCallback>& callbacks,
                EventHandler* client, bool modal = true);
