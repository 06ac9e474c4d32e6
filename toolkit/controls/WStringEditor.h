#pragma once

#include "CellEditorBase.h"
#include "TextBox.h"

/// The editor of text cells, and the one a table uses for every kind that has no
/// editor of its own. It paints the adaptor's text with its font, style, colour and
/// alignment, and edits it in a TextBox over the cell: Return or leaving the box
/// keeps the text, Escape goes back to it.
class WStringEditor : public CellEditorBase<TextBox> {
public:
    // Paints `text` in the cell as the adaptor styles it; returns the area the text
    // covers (empty for empty text). Nothing is painted when ctx.draw is false.
    BoxInt draw(CellContext& ctx, const LightweightString<wchar_t>& text);

    int drawField(CellContext& ctx) override;
    void initWidgetFromData(CellContext& ctx) override;
    bool storeData(CellContext& ctx) override;
    void reset() override;
    bool isResponsibleForMessage(const LightweightString<char>& message, Glob* sender) const override;
    MouseCursorID contextCursor(const CellContext& ctx, const XY<int>& p) override;
    // The whole text when the cell is too narrow to show it.
    UIString contextString(const CellContext& ctx) override;
    XY<int> measure(const CellContext& ctx) override;

protected:
    TextBox* makeWidget(CellContext& ctx) override;

private:
    LightweightString<wchar_t> original_;
};
