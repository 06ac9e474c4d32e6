#pragma once

#include "LoggedItem.h"
#include "controls/WStringEditor.h"

#include <vector>

/// The cell editor of a Logger's rows. It never edits: it paints a row as its kind
/// asks (HTML through HTMLRenderer, a section with a rule to the right edge, long
/// rows wrapped) and follows a link row when it is clicked. Mouse events go to the
/// table's adaptor first, which drags links out; a release that ends a drag is no
/// click. The rows are the Logger's; the field only reads them.
class LogItemField : public WStringEditor {
public:
    explicit LogItemField(const std::vector<LoggedItem>* items) : items_(items) {}

    // Paints the row; returns 1.
    int drawField(CellContext& ctx) override;
    // A left-button release on a link row follows the link. Always true: every
    // mouse event on a row is taken.
    bool handleEvent(const CellContext& ctx, const Event& e) override;
    // The link cursor on a link row, the default on any other.
    MouseCursorID contextCursor(const CellContext& ctx, const XY<int>& p) override;

private:
    const LoggedItem* rowOf(const CellContext& ctx) const;
    void drawSection(CellContext& ctx, const LightweightString<wchar_t>& text);
    void drawLine(CellContext& ctx, const BoxInt& box, const LightweightString<wchar_t>& text);

    const std::vector<LoggedItem>* items_;
};
