#pragma once

#include "CellContext.h"
#include "core/iObject.h"
#include "glob/MouseCursor.h"
#include "platform/UIString.h"

class Event;
class Glob;

/// Paints one kind of table cell and edits it in place. A TableWidget keeps one
/// editor per field kind (DBFieldTypes::eType) and uses it for every cell of that
/// kind, so an editor holds at most one editing widget at a time. The widget is a
/// child of the table, which owns it; the editor only keeps a checked reference.
class iCellEditor : public virtual iObject {
public:
    // Makes the editing widget as a child of ctx.table if there is none, fills it
    // from the cell's data and returns it; the table places it. Null refuses.
    virtual Glob* getWidget(CellContext& ctx) = 0;
    // Forgets the widget without touching it.
    virtual void releaseWidget() = 0;
    // Writes what the widget holds to the adaptor; true when the data changed.
    virtual bool storeData(CellContext& ctx) = 0;
    virtual void initWidgetFromData(CellContext& ctx) = 0;
    virtual bool hasChanged() const = 0;
    virtual void clearChanged() = 0;
    virtual void hide() = 0;
    // Puts the widget back to the data it was filled from.
    virtual void reset() = 0;
    // Whether a message that reached the table came from this editor's widget.
    virtual bool isResponsibleForMessage(const LightweightString<char>& message, Glob* sender) const = 0;
    // Paints the cell; returns 1 when it painted.
    virtual int drawField(CellContext& ctx) = 0;
    // A mouse event on the cell; true when the editor took it.
    virtual bool handleEvent(const CellContext& ctx, const Event& e) = 0;
    virtual bool hasFocus() const = 0;
    // kCursorArrow lets the table's adaptor choose.
    virtual MouseCursorID contextCursor(const CellContext& ctx, const XY<int>& p) = 0;
    virtual UIString contextString(const CellContext& ctx) = 0;
    // The size the cell's content needs.
    virtual XY<int> measure(const CellContext& ctx) = 0;
};
