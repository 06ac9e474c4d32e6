#include "LogItemField.h"

#include "LogLinks.h"
#include "controls/TableWidget.h"
#include "draw/CanvasRenderer.h"
#include "draw/HTMLRenderer.h"
#include "draw/TextStyle.h"
#include "draw/UifStd.h"
#include "draw/WordWrappingTextRenderer.h"

#include <algorithm>

namespace {

// Paints a description clipped to the context's clip box, and notes the area painted.
template <class D>
void paintClipped(CellContext& ctx, const D& description, BoxInt bounds) {
    if (!ctx.draw || !ctx.canvas) return;
    if (!ctx.clip.isEmpty()) bounds.clip(ctx.clip);
    if (bounds.isEmpty()) return;
    CanvasRenderer::renderPrimitive(ctx.canvas, description);
    XY<int> o = ctx.canvas->origin();
    ctx.canvas->addModifiedArea(bounds.translated(o.x, o.y));
}

int rowHeight(const CellContext& ctx) { return ctx.table ? ctx.table->getRowHeight() : UifStd::instance().getRowHeight(); }

} // namespace

const LoggedItem* LogItemField::rowOf(const CellContext& ctx) const {
    if (!items_ || !ctx.adaptor || ctx.row() < 0) return nullptr;
    auto row = static_cast<std::size_t>(ctx.row());
    if (row >= ctx.adaptor->getSize() || row >= items_->size()) return nullptr;
    return &(*items_)[row];
}

int LogItemField::drawField(CellContext& ctx) {
    const LoggedItem* row = rowOf(ctx);
    if (!row) return 1;
    LightweightString<wchar_t> text = ctx.adaptor->getFieldText(ctx.cell);
    if (text.empty()) return 1;
    if (row->type == LoggerBase::otSection) {
        drawSection(ctx, text);
        return 1;
    }
    // Indented by whole rows; the margin keeps the text where a section's text starts.
    BoxInt box = ctx.box;
    box.x1 += static_cast<unsigned short>(row->indent * UifStd::instance().getRowHeight()) + TableColumnDescription::textMargin();
    if (HTMLRenderer::isHTML(text)) {
        if (ctx.draw) HTMLRenderer::render(ctx.canvas, HTMLRenderer::parse(text, ctx.palette), box, rowHeight(ctx), HTMLRenderer::kLeftTop);
    } else if (row->numLines < 2) {
        drawLine(ctx, box, text);
    } else if (ctx.draw) {
        Glib::WordWrappingTextRenderer::renderString(ctx.canvas, text, box, ctx.palette.text(kTextNormal), Canvas::createFont(row->font),
                                                     rowHeight(ctx), 0);
    }
    return 1;
}

void LogItemField::drawSection(CellContext& ctx, const LightweightString<wchar_t>& text) {
    BoxInt used = WStringEditor::draw(ctx, text);
    int x0 = used.x2 + TableColumnDescription::textMargin();
    int y = ctx.box.y2 + getFontYOffset(ctx.box.height(), Glib::getDefaultFont(0));
    int x1 = ctx.box.x2 - UifStd::instance().getWidgetGap();
    Colour colour = Colour::mix(ctx.palette.subheadingText(), ctx.palette.window(kShadeNormal), 0.2);
    Glib::LineDescription rule({double(x0), double(y)}, {double(x1), double(y)}, colour, 1.0);
    paintClipped(ctx, rule, BoxInt(std::min(x0, x1) - 1, y - 1, std::max(x0, x1) + 1, y + 1));
}

void LogItemField::drawLine(CellContext& ctx, const BoxInt& box, const LightweightString<wchar_t>& text) {
    Glib::FontDesc font = Canvas::createFont(ctx.adaptor->getFont(ctx.cell));
    font.style |= Glib::mapTextStyle(ctx.adaptor->getTextStyle(ctx.cell));
    int baseline = box.y2 + getFontYOffset(box.height(), font);
    int top = baseline + Glib::fontAscent(font);
    Glib::TextDescription t(BoxInt(box.x1, top - Glib::fontHeight(font), box.x2, top), text, font, ctx.palette.text(kTextNormal));
    BoxInt bounds = Glib::calcBounds(t);
    paintClipped(ctx, t, bounds);
    if (ctx.adaptor->getTextStyle(ctx.cell) == iTableAdaptor::kStyleLink && !bounds.isEmpty()) {
        // Links are underlined a pixel below the baseline, as far as the text reaches.
        Glib::LineDescription under({double(bounds.x1), double(baseline - 2)}, {double(bounds.x2 - 1), double(baseline - 2)}, t.colour);
        paintClipped(ctx, under, BoxInt(bounds.x1, baseline - 3, bounds.x2, baseline - 1));
    }
}

bool LogItemField::handleEvent(const CellContext& ctx, const Event& e) {
    const LoggedItem* row = rowOf(ctx);
    if (!row) return true;
    // The adaptor sees every event first: it drags link rows out, and a release
    // that ends such a drag is not a click.
    if (ctx.adaptor->handleMouseClickEvent(ctx.cell, e) != 0) return true;
    if (!mouse_left_event(e) || !mouse_up_event(e) || row->type != LoggerBase::otHyperLink) return true;
    // Copied first: following a link may make panels, and the rows may change meanwhile.
    LoggerBase::HyperLink link = LoggerBase::HyperLink::fromString(row->text);
    LogLinks::follow(link);
    return true;
}

MouseCursorID LogItemField::contextCursor(const CellContext& ctx, const XY<int>&) {
    const LoggedItem* row = rowOf(ctx);
    return row && row->type == LoggerBase::otHyperLink ? kCursorHand : kCursorArrow;
}
