#pragma once

#include "GlobInspector.h"

/// One card of the GlobInspector: the position, size and type of one widget. A
/// click outlines the widget on the screen with a SelectionRectangle, the next click
/// takes the outline away; the context menu changes the widget.
class GlobInspector::InfoWidget : public StandardPanel {
public:
    /// What a card is made from: a panel's record and the widget it shows.
    struct InitArgs : StandardPanel::InitArgs {
        Glob* target = nullptr;
        InitArgs() = default;
        InitArgs(unsigned short w, unsigned short h, Glob* t) : StandardPanel::InitArgs(w, h), target(t) {}
    };

    explicit InfoWidget(const InitArgs& args);
    ~InfoWidget() override;
    InfoWidget(const InfoWidget&) = delete;
    InfoWidget& operator=(const InfoWidget&) = delete;
    const char* idstring() const override { return "InfoWidget"; }

    static int calcHeight();
    Glob* getTarget() const { return target_.get(); }
    bool isHighlighted() const { return highlighted_; }
    // The three lines the card shows, label and value, for tests and tools.
    std::vector<std::pair<LightweightString<wchar_t>, LightweightString<wchar_t>>> lines() const;

    // The rows of the menu that changes the target; none for a dead target.
    MenuData menuFor() const;

    void drawBackground() override;
    int handleMouseEvent(const Event& e) override;
    void reviewMenu(const Event* e) override;
    int handleDataMessageEvent(const LightweightString<char>& message, Glob* sender, const Zn::Ptr<iObject>& data) override;

    static constexpr const char* kBorderMsg = "Border";
    static constexpr const char* kShadowMsg = "Shadow";
    static constexpr const char* kVisibleMsg = "Visible";

private:
    void toggleHighlight();

    GlobHandle<Glob> target_;
    bool highlighted_ = false;
    GlobHandle<Glob> selection_;
    XY<int> pressedAt_;
};
