#pragma once

#include "StandardPanel.h"
#include "core/NotifyMsg.h"

#include <functional>
#include <map>

/// A panel that answers named messages through handlers registered by name: a tool
/// panel whose controls and menus report to it by message names the panel
/// registers once, instead of a chain of name comparisons. Messages it has no
/// handler for go to StandardPanel.
class MessageBase : public StandardPanel {
public:
    // Gets the message's name and payload (null for a plain message); non-zero consumes.
    using Handler = std::function<int(const NotifyMsg&)>;

    explicit MessageBase(const InitArgs& args) : StandardPanel(args) {}
    const char* idstring() const override { return "MessageBase"; }

    // A later handler for the same name replaces the earlier one.
    void addHandler(const LightweightString<char>& message, Handler handler);
    bool handles(const LightweightString<char>& message) const { return handlers_.count(message) != 0; }

    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;
    int handleDataMessageEvent(const LightweightString<char>& message, Glob* sender, const Zn::Ptr<iObject>& data) override;

private:
    std::map<LightweightString<char>, Handler> handlers_;
};
