#pragma once

#include "controls/StandardPanel.h"
#include "glob/TabOrderManager.h"
#include "platform/IPAddress.h"

#include <vector>

class CustomTextBox;

/// An IPv4 address, and optionally a port, typed as one line: four digit boxes with
/// dots drawn between them and a fifth for the port after a colon. The caret moves
/// on by itself when a box is full or a dot is typed, Backspace at the start of a
/// box goes back, and a pasted dotted address fills every box. Return in any box
/// sends kReturnPressedMsg up to the owner. The boxes hold the only state; their
/// text is checked for digits and length, not range.
class IPAddressEntryBox : public StandardPanel, public TabOrderableHost {
public:
    /// What an IPAddressEntryBox is made from: the panel's record, the first address
    /// (as setURI takes it) and whether there is a port box.
    struct InitArgs : StandardPanel::InitArgs {
        LightweightString<wchar_t> address;
        bool withPort = false;
        InitArgs() = default;
        InitArgs(const LightweightString<wchar_t>& addr, bool port, unsigned short height = 0)
            : StandardPanel::InitArgs(calcWidth(port), height), address(addr), withPort(port) {}
    };

    static constexpr const char* kReturnPressedMsg = "IPReturnPressed";
    static constexpr const char* kTabNextMsg = "hnext";
    static constexpr const char* kTabPrevMsg = "hprev";

    explicit IPAddressEntryBox(const InitArgs& args);
    const char* idstring() const override { return "IPAddressEntryBox"; }

    // The boxes' texts as one line: dots after the first three boxes once anything
    // precedes them, then ":" and the port when there is a port box.
    LightweightString<wchar_t> getURI() const;
    // False, leaving the boxes alone, when the text is no address.
    bool setURI(const LightweightString<wchar_t>& text);
    void setURI(const IPAddress& address);

    static unsigned short calcWidth(bool withPort);
    static unsigned short calcBoxWidth(const LightweightString<wchar_t>& text);
    static int gap();

    void setActive(bool active, eRedrawFlag flag = kRedraw) override;
    void setPalette(const Palette& palette) override;
    void getTabOrderables(std::vector<TabOrderable*>& stops);
    std::vector<TabOrderable*> getTabStops() override;
    // The box at `index` from the left, null past the last.
    CustomTextBox* entryBox(std::size_t index) const { return index < boxes_.size() ? boxes_[index] : nullptr; }

    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;
    int handleKeyboardEvent(int keyCode) override;
    void drawBackground() override;

private:
    static constexpr std::size_t kOctets = 4;
    // Gives box `index` the focus with the caret at `caret` (clamped to its text).
    void moveInto(std::size_t index, std::size_t caret);
    // The index of the box that is `g`; npos when it is none of them.
    std::size_t indexOf(const Glob* g) const;
    void pasteFromClipboard(const Glob* sender);

    std::vector<CustomTextBox*> boxes_;
};
