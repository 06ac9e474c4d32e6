#pragma once

#include "StandardPanel.h"
#include "core/WidgetCallback.h"
#include "platform/UIString.h"

#include <vector>

class PushButton;

/// A small top-level panel that tells the user something: a title bar, a text
/// wrapped to the panel's width, and an OK button under it. OK or Return fires
/// the record's callback (or, with no callback, posts its message to the client)
/// and closes the panel; Escape closes it without firing. Closing is a deletion
/// requested from GlobManager, so the panel goes at the next safe moment.
///
/// makeMessage builds one, centres it on the screen, realizes it and gives its
/// button the keyboard focus. A modal message takes all input until it closes.
class Message : public StandardPanel {
public:
    /// What a Message is made from: its title and text, what OK does, and whether it is modal.
    struct InitArgs : StandardPanel::InitArgs {
        UIString title;
        UIString text;
        WidgetCallback callback;
        // Who hears a callback's message; the panel keeps it by stamp.
        EventHandler* client = nullptr;
        bool modal = true;
        InitArgs() = default;
        // A size of 0 on either side is worked out from the texts.
        InitArgs(const UIString& title, const UIString& text, unsigned short width = 0, unsigned short height = 0)
            : StandardPanel::InitArgs(width, height), title(title), text(text) {}
    };

    // The text broken into lines that fit a width, and the height they need.
    struct Analysis {
        std::vector<LightweightString<wchar_t>> lines;
        int height = 0;
    };

    explicit Message(const InitArgs& args);
    const char* idstring() const override { return "Message"; }

    // The width of each button of a row with these labels: all are as wide as the widest needs.
    static int calcButtonWidth(const std::vector<UIString>& labels);
    static Analysis analyse(const UIString& text, int width);
    // The panel size for a title, a text and a row of buttons `buttonsWidth` wide.
    static XY<int> calcSize(const UIString& title, const UIString& text, int buttonsWidth);
    // The width the text is wrapped to: at least 18 row heights.
    static int calcTextWidth(const UIString& title, int buttonsWidth);

    const UIString& getText() const { return text_; }
    int numButtons() const { return static_cast<int>(buttons_.size()); }
    PushButton* getButton(int index) const;
    // Fires the button's callback and closes; an index out of range only closes.
    void press(int index);
    void close();
    bool isClosing() const { return closing_; }

    // The box the text is written in.
    BoxInt textBox() const;

    void drawBackground() override;
    int handleKeyboardEvent(int keyCode) override;
    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;
    void resize(double width, double height) override;

    // Centres a finished panel on the screen, realizes it and focuses its first button.
    static void show(Message* m);

protected:
    // For panels with a row of buttons of their own; an empty row gets one OK button.
    Message(const InitArgs& args, const std::vector<UIString>& labels, const std::vector<WidgetCallback>& callbacks);
    // The room left of the text, which a derived panel may paint in.
    virtual int textIndent() const;

private:
    void build(const std::vector<UIString>& labels);
    void layoutButtons();

    UIString text_;
    std::vector<WidgetCallback> callbacks_;
    std::vector<PushButton*> buttons_;
    EventHandler* client_;
    IdStamp clientStamp_;
    bool modal_;
    bool closing_ = false;
};

// Shows a plain message with an OK button, centred on the screen, modal.
Message* makeMessage(const UIString& text);
Message* makeMessage(const UIString& title, const UIString& text, const WidgetCallback& onOk = {}, EventHandler* client = nullptr);
