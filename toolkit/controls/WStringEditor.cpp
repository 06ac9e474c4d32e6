#include "WStringEditor.h"

#include "TableWidget.h"
#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "draw/WordWrappingTextRenderer.h"

#include <algorithm>

namespace {

Glib::FontDesc cellFont(const CellContext& ctx) {
    Glib::FontDesc f = ctx.adaptor ? ctx.adaptor->getFont(ctx.cell) : Glib::FontDesc();
    if (f == Glib::FontDesc()) f = ctx.table ? ctx.table->getFont() : UifStd::instance().getDefaultFont();
    int style = ctx.adaptor ? ctx.adaptor->getTextStyle(ctx.cell) : iTableAdaptor::kStyleDefault;
    if (style == iTableAdaptor::kStyleBold) f.style |= Glib::FontDesc::kBold;
    if (style == iTableAdaptor::kStyleItalic) f.style |= Glib::FontDesc::kItalic;
    return f.resolved();
}

Glib::TextAlignment cellAlignment(const CellContext& ctx) {
    return ctx.adaptor ? ctx.adaptor->getTextAlignment(ctx.cell) : Glib::TextAlignment(Glib::kAlignDefault, Glib::kAlignTop);
}

int lineHeightOf(const CellContext& ctx) { return ctx.table ? ctx.table->getRowHeight() : UifStd::instance().getRowHeight(); }

} // namespace

BoxInt WStringEditor::draw(CellContext& ctx, const LightweightString<wchar_t>& text) {
    int margin = TableColumnDescription::textMargin();
    BoxInt inner(ctx.box.x1 + margin, ctx.box.y1, ctx.box.x2 - margin, ctx.box.y2);
    if (text.empty() || inner.isEmpty()) return {};
    Glib::FontDesc font = cellFont(ctx);
    const Glib::TextAlignment alignment = cellAlignment(ctx);
    const Glib::eHorizontalAlign align = alignment.horizontal == Glib::kAlignDefault ? Glib::kAlignLeft : alignment.horizontal;
    int lineH = std::max(1, std::min(lineHeightOf(ctx), inner.height()));
    Colour ink = ctx.palette.text();
    bool visible = ctx.clip.isEmpty() || !BoxInt(ctx.box).clip(ctx.clip).isEmpty();

    // A row at least two lines high shows its text wrapped, from the top.
    bool wrap = inner.height() >= 2 * lineH || text.find(L'\n') != LightweightString<wchar_t>::npos;
    if (wrap) {
        Glib::WordWrappingTextRenderer lines(text, font, inner.width(), align);
        int used = std::min(inner.height(), lines.numLines() * lineH);
        if (ctx.draw && visible && ctx.canvas) lines.render(ctx.canvas, inner, ink, lineH);
        return BoxInt(inner.x1, inner.y2 - used, inner.x2, inner.y2);
    }

    BoxInt band = alignment.vertical == Glib::kAlignTop      ? BoxInt(inner.x1, inner.y2 - lineH, inner.x2, inner.y2)
                  : alignment.vertical == Glib::kAlignBottom ? BoxInt(inner.x1, inner.y1, inner.x2, inner.y1 + lineH)
                                                             : inner;
    XY<int> size = Glib::measureText(text, font);
    int width = std::min(size.x, band.width());
    int x1 = align == Glib::kAlignCentreH ? band.x1 + (band.width() - width) / 2 : align == Glib::kAlignRight ? band.x2 - width : band.x1;
    int top = band.y2 - (band.height() - size.y) / 2;
    BoxInt used(x1, top - size.y, x1 + width, top);
    if (!ctx.draw || !visible || !ctx.canvas) return used;
    CanvasRenderer r(ctx.canvas);
    Glib::TextDescription t(band, text, font, ink, align);
    t.ellipsize = true;
    r.render(t);
    if (ctx.adaptor && ctx.adaptor->getTextStyle(ctx.cell) == iTableAdaptor::kStyleLink) {
        // Underlined a pixel below the baseline, as far as the text reaches.
        int y = top - Glib::fontAscent(font) - 2;
        r.render(Glib::LineDescription({double(x1), double(y)}, {double(x1 + width - 1), double(y)}, ink));
    }
    return used;
}

int WStringEditor::drawField(CellContext& ctx) {
    if (!ctx.adaptor) return 0;
    draw(ctx, ctx.adaptor->getFieldText(ctx.cell));
    return 1;
}

TextBox* WStringEditor::makeWidget(CellContext& ctx) {
    TextBox::InitArgs args(UIString(), static_cast<unsigned short>(std::max(1, ctx.box.width())),
                           static_cast<unsigned short>(std::max(1, ctx.box.height())));
    args.canvas = ctx.table->canvas();
    args.palette = ctx.table->getPalette();
    auto* box = new TextBox(args);
    ctx.table->addChild(box, Glob::BottomLeft(ctx.box.x1, ctx.box.y1));
    box->requestCallback(TableWidget::cellCommitMsg, ctx.table, TextBoxBase::kReturnPressed);
    box->requestCallback(TableWidget::cellCommitMsg, ctx.table, TextBoxBase::kFocusLost);
    box->requestCallback(TableWidget::cellCancelMsg, ctx.table, TextBoxBase::kEscapePressed);
    return box;
}

void WStringEditor::initWidgetFromData(CellContext& ctx) {
    original_ = ctx.adaptor ? ctx.adaptor->getFieldText(ctx.cell) : LightweightString<wchar_t>();
    if (TextBox* box = live()) {
        box->setFont(cellFont(ctx));
        box->setString(original_, kNoRedraw);
        box->highlightAllText(true);
    }
    changed_ = false;
}

bool WStringEditor::storeData(CellContext& ctx) {
    TextBox* box = live();
    if (!box || !ctx.adaptor) return false;
    LightweightString<wchar_t> text = box->getString();
    if (text == original_ || !ctx.adaptor->setFieldText(ctx.cell, text)) return false;
    original_ = text;
    changed_ = true;
    return true;
}

void WStringEditor::reset() {
    if (TextBox* box = live()) box->setString(original_, kNoRedraw);
}

bool WStringEditor::isResponsibleForMessage(const LightweightString<char>& message, Glob* sender) const {
    return CellEditorBase<TextBox>::isResponsibleForMessage(message, sender) &&
           (message == TableWidget::cellCommitMsg || message == TableWidget::cellCancelMsg);
}

MouseCursorID WStringEditor::contextCursor(const CellContext& ctx, const XY<int>&) {
    return ctx.adaptor && ctx.adaptor->canEdit(ctx.cell) ? kCursorIBeam : kCursorArrow;
}

UIString WStringEditor::contextString(const CellContext& ctx) {
    if (!ctx.adaptor) return {};
    LightweightString<wchar_t> text = ctx.adaptor->getFieldText(ctx.cell);
    if (measure(ctx).x <= ctx.box.width()) return {};
    return UIString(text);
}

XY<int> WStringEditor::measure(const CellContext& ctx) {
    if (!ctx.adaptor) return {};
    XY<int> size = Glib::measureText(ctx.adaptor->getFieldText(ctx.cell), cellFont(ctx));
    return {size.x + 2 * TableColumnDescription::textMargin(), size.y};
}
