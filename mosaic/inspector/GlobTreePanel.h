#pragma once

#include "controls/MessageBase.h"
#include "controls/iTreeViewAdaptor.h"

#include <map>
#include <vector>

class TreeView;

/// A developer's tool: every widget on the screen as a tree, top-level panels first,
/// with the details of the chosen one beside it. The tree asks for a level only
/// when it is opened, so a large widget tree opens at once.
class GlobTreePanel : public MessageBase, public iTreeViewAdaptor {
public:
    /// What a GlobTreePanel is made from: a panel's record.
    struct InitArgs : StandardPanel::InitArgs {
        using StandardPanel::InitArgs::InitArgs;
    };

    explicit GlobTreePanel(const InitArgs& args);
    const char* idstring() const override { return "GlobTreePanel"; }

    // What the "Glob Inspector 2" command does: the panel in the middle of the screen.
    static GlobTreePanel* create();
    static XY<int> calcSize();

    TreeView* getTree() const { return tree_; }
    // The detail lines of a widget, in the order shown; none for a dead one.
    static std::vector<LightweightString<wchar_t>> detailsOf(Glob* glob);
    const std::vector<LightweightString<wchar_t>>& getDetails() const { return details_; }
    Glob* globOf(ItemId item) const;

    std::vector<ItemId> getChildren(ItemId parent) override;
    LightweightString<wchar_t> getItemText(ItemId item) override;
    bool hasChildren(ItemId item) override;
    void handleItemSelected(ItemId item) override;

    void drawBackground() override;

    static constexpr const char* kTitle = "Glob Tree";
    static constexpr const char* kCommand = "Glob Inspector 2";

private:
    ItemId idOf(Glob* glob);
    BoxInt detailsBox() const;

    TreeView* tree_ = nullptr;
    std::vector<GlobHandle<Glob>> globs_;
    std::map<const Glob*, ItemId> ids_;
    std::vector<LightweightString<wchar_t>> details_;
};
