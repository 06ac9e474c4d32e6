#pragma once

#include "HostPanel.h"
#include "frame/GlobHandle.h"

class CodeEditor;

/// A development aid, opened by the command "makeUIBuilderTestPanel": a code editor
/// for a JSON description and a "Build" button that shows the built panel in a
/// HostPanel beside this one, replacing the one built before. Text that does not
/// parse builds nothing.
class UIBuilderTestPanel : public StandardPanel {
public:
    explicit UIBuilderTestPanel(const InitArgs& args);
    const char* idstring() const override { return "UIBuilderTestPanel"; }

    static UIBuilderTestPanel* make();

    int handleMessageEvent(const LightweightString<char>& message, Glob* sender) override;

    CodeEditor* editor() const { return editor_; }
    HostPanel* host() const { return host_.get(); }

private:
    void build();

    CodeEditor* editor_ = nullptr;
    GlobHandle<HostPanel> host_;
};
