#pragma once

#include "controls/MenuData.h"
#include "controls/MessageBase.h"

#include <vector>

/// A developer's tool for the live widget tree: a panel whose bottom left corner is
/// its hot spot. A middle click on it picks the widget under the hot spot (looking
/// beneath the inspector) and shows a card for it and for each of its parents up to
/// the root, stacked from the top. A card tells the widget's place, size and type,
/// outlines it on the screen when clicked, and changes its border, shadow, furniture
/// and visibility from its context menu. A target that dies takes its cards with it.
class GlobInspector : public MessageBase {
public:
    class InfoWidget;

    /// What a GlobInspector is made from: a panel's record.
    struct InitArgs : StandardPanel::InitArgs {
        using StandardPanel::InitArgs::InitArgs;
    };

    explicit GlobInspector(const InitArgs& args);
    const char* idstring() const override { return "GlobInspector"; }

    // What the "Glob Inspector" command does: an inspector just above and right of the mouse.
    static GlobInspector* create();
    // The panel's size with a card for `glob` and each of its parents; one card's
    // height when there is none.
    static XY<int> calcSizeFor(Glob* glob);

    // Shows the cards of `glob`'s chain; null shows none.
    void setTarget(Glob* glob);
    Glob* getTarget() const { return target_.get(); }
    const std::vector<InfoWidget*>& getCards() const { return cards_; }
    // Picks the widget under the hot spot as the target, and fits the panel to its
    // cards keeping its top left.
    void pickTarget();

    // The menu's actions on a card's target; false when the target has gone or the
    // change does not apply to it.
    static bool handleBorderChangeRequest(Glob* target, const MenuData::Change& change);
    static bool handleShadowChangeRequest(Glob* target, const MenuData::Change& change);
    static bool handleWidgetChangeRequest(Glob* target, const MenuData::Change& change);
    static bool handleVisChangeRequest(Glob* target, const MenuData::Change& change);

    int handleMouseEvent(const Event& e) override;
    int handleTimerEvent() override;
    void drawBackground() override;
    void drawWidgets() override;

    static constexpr const char* kTitle = "Glob Inspector";
    // The flags and group of both inspector commands.
    static constexpr int kCommandFlags = 2;
    static constexpr const char* kCommandGroup = "Developer";

private:
    // Whether the target has died since it was set.
    bool targetDied() const;
    void clearCards();

    GlobHandle<Glob> target_;
    std::vector<InfoWidget*> cards_;
};
