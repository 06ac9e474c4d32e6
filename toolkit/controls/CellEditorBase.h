#pragma once

#include "glob/Glob.h"
#include "glob/Messaging.h"
#include "iCellEditor.h"

/// The part of a cell editor that edits with one widget of type W: it keeps the
/// widget by stamp, so a widget that its table has deleted is never touched, and a
/// flag that says whether the last store changed the data. Subclasses make the
/// widget (makeWidget) and move the data in and out of it.
template <class W>
class CellEditorBase : public iCellEditor {
public:
    Glob* getWidget(CellContext& ctx) override {
        if (!ctx.table) return nullptr;
        W* w = live();
        if (!w) {
            w = makeWidget(ctx);
            if (!w) return nullptr;
            widget_ = w;
            stamp_ = w->stamp();
        }
        initWidgetFromData(ctx);
        return w;
    }
    void releaseWidget() override {
        widget_ = nullptr;
        stamp_ = IdStamp(0, 0, 0);
    }
    bool hasChanged() const override { return changed_; }
    void clearChanged() override { changed_ = false; }
    void hide() override {
        if (W* w = live()) w->setVisible(false);
    }
    bool hasFocus() const override {
        W* w = live();
        return w && get_kbd_focus() == w;
    }
    bool handleEvent(const CellContext&, const Event& e) override {
        W* w = live();
        if (!w || !w->isVisible()) return false;
        return w->react(e) != 0;
    }
    bool isResponsibleForMessage(const LightweightString<char>&, Glob* sender) const override { return sender && sender == live(); }
    MouseCursorID contextCursor(const CellContext&, const XY<int>&) override { return kCursorArrow; }
    UIString contextString(const CellContext&) override { return {}; }

protected:
    // A new editing widget for ctx, made as a child of ctx.table.
    virtual W* makeWidget(CellContext& ctx) = 0;
    W* live() const { return widget_ && EventHandler::valid(widget_, stamp_) ? widget_ : nullptr; }

    bool changed_ = false;

private:
    W* widget_ = nullptr;
    IdStamp stamp_;
};
