#include "TableWidget.h"

#include "ScrollBar.h"
#include "WStringEditor.h"
#include "draw/Canvas.h"
#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "glob/InputDispatcher.h"
#include "glob/Messaging.h"

#include <algorithm>
#include <climits>
#include <cmath>

namespace {

// Paints now only when on the screen: while a control is being built it has no
// place yet, and painting would land in a corner of the canvas it shares.
void repaint(Glob* g) {
    if (g->isShowing() && GlobManager::instance().isRealized(getRootParent(g))) g->redraw();
}

// Rows scrolled by one notch of the wheel over the rows.
constexpr int kWheelRows = 3;
// No row is taller than this, whatever an adaptor says.
constexpr int kMaxRowHeight = 32767;

int minColumnWidth() { return 2 * TableColumnDescription::textMargin() + UifStd::instance().getRowGap(); }

} // namespace

TableWidget::TableWidget(const InitArgs& args)
    : StandardPanel(StandardPanel::InitArgs(args, Border(Border::kNoBorder, 0, 15))), adaptor_(args.adaptor), textEditor_(new WStringEditor),
      rowHeight_(args.rowHeight ? args.rowHeight : UifStd::instance().getRowHeight()),
      headerHeight_(args.headerLines * UifStd::instance().getRowHeight() / 2) {
    ScrollBar::InitArgs bar(ScrollBar::kVertical, static_cast<unsigned short>(std::max(0, bodyBox().height())));
    bar.canvas = canvas();
    bar.palette = getPalette();
    bar_ = new ScrollBar(bar);
    addChild(bar_, UserBottomRight(0, 0));
    refresh();
}

TableWidget::~TableWidget() = default;

int TableWidget::calcHeight(unsigned numRows, unsigned headerLines, int) {
    long long row = UifStd::instance().getRowHeight();
    return static_cast<int>(std::min<long long>(INT_MAX, numRows * row + headerLines * row / 2));
}

// ---- data -------------------------------------------------------------------

void TableWidget::setAdaptor(iTableAdaptor* adaptor) {
    stopEditing(false);
    adaptor_ = adaptor;
    columns_.clear();
    first_ = 0;
    cur_ = {0, -1};
    refresh();
}

void TableWidget::refresh() {
    std::vector<TableColumnDescription> cols = adaptor_ ? adaptor_->getColumnDefinitions() : std::vector<TableColumnDescription>();
    if (cols.size() != columns_.size()) {
        widths_.assign(cols.size(), 0);
        userSized_.assign(cols.size(), false);
    }
    columns_ = std::move(cols);
    layoutColumns();
    first_ = std::clamp(first_, 0, maxFirstRow());
    int n = rows();
    if (n == 0)
        cur_.y = -1;
    else
        cur_.y = std::clamp(cur_.y, 0, n - 1);
    cur_.x = std::clamp(cur_.x, 0, std::max(0, numColumns() - 1));
    updateBar();
    repaint(this);
}

void TableWidget::registerFieldEditor(DBFieldTypes::eType type, const Zn::Ptr<iCellEditor>& editor) {
    if (editor)
        editors_[type] = editor;
    else
        editors_.erase(type);
    repaint(this);
}

Zn::Ptr<iCellEditor> TableWidget::getFieldEditor(DBFieldTypes::eType type) const {
    auto it = editors_.find(type);
    return it == editors_.end() ? Zn::Ptr<iCellEditor>() : it->second;
}

Zn::Ptr<iCellEditor> TableWidget::editorFor(const XY<int>& cell) const {
    if (adaptor_) {
        auto it = editors_.find(adaptor_->getFieldType(cell));
        if (it != editors_.end()) return it->second;
    }
    auto fallback = editors_.find(DBFieldTypes::kUnknown);
    return fallback != editors_.end() ? fallback->second : textEditor_;
}

int TableWidget::rows() const {
    if (!adaptor_) return 0;
    return static_cast<int>(std::min<unsigned>(adaptor_->getSize(), INT_MAX));
}

int TableWidget::rowHeightOf(int row) const {
    int h = adaptor_ && row >= 0 ? adaptor_->getRowHeight(row) : 0;
    return h > 0 ? std::min(h, kMaxRowHeight) : rowHeight_;
}

void TableWidget::setRowHeight(unsigned short h) {
    if (h == 0) return;
    rowHeight_ = h;
    refresh();
}

// ---- columns ----------------------------------------------------------------

const TableColumnDescription* TableWidget::getColumn(int col) const {
    return col >= 0 && col < numColumns() ? &columns_[static_cast<std::size_t>(col)] : nullptr;
}

int TableWidget::getColumnWidth(int col) const { return col >= 0 && col < numColumns() ? widths_[static_cast<std::size_t>(col)] : 0; }

void TableWidget::setColumnWidth(int col, int width) {
    if (col < 0 || col >= numColumns()) return;
    widths_[static_cast<std::size_t>(col)] = std::max(minColumnWidth(), width);
    userSized_[static_cast<std::size_t>(col)] = true;
    layoutColumns();
    repaint(this);
}

void TableWidget::layoutColumns() {
    int avail = bodyBox().width(), fixed = 0, flexible = 0;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        if (userSized_[i]) {
            fixed += widths_[i];
        } else if (columns_[i].getWidth() > 0) {
            widths_[i] = columns_[i].getWidth();
            fixed += widths_[i];
        } else {
            ++flexible;
        }
    }
    // Columns of width 0 share what is left, the last taking the odd pixels.
    int spare = std::max(0, avail - fixed), given = 0, seen = 0;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        if (userSized_[i] || columns_[i].getWidth() > 0) continue;
        ++seen;
        int w = seen == flexible ? spare - given : spare / flexible;
        widths_[i] = std::max(minColumnWidth(), w);
        given += w;
    }
}

int TableWidget::columnEdgeAt(int x) const {
    int reach = std::max(2, UifStd::instance().getRowGap());
    int edge = bodyBox().x1;
    for (int col = 0; col < numColumns(); ++col) {
        edge += widths_[static_cast<std::size_t>(col)];
        if (std::abs(x - edge) <= reach && columns_[static_cast<std::size_t>(col)].isResizeable()) return col;
    }
    return -1;
}

// ---- geometry and scrolling -------------------------------------------------

BoxInt TableWidget::headerBox() const {
    BoxInt u = getUserArea();
    int h = std::min(headerHeight_, u.height());
    return BoxInt(u.x1, u.y2 - h, u.x2, u.y2);
}

BoxInt TableWidget::bodyBox() const {
    BoxInt u = getUserArea();
    int top = std::max(u.y1, u.y2 - headerHeight_);
    return BoxInt(u.x1, u.y1, std::max(u.x1, u.x2 - ScrollBar::thickness()), top);
}

unsigned short TableWidget::numLines() const {
    return static_cast<unsigned short>(std::clamp(rowHeight_ > 0 ? bodyBox().height() / rowHeight_ : 0, 0, 0xFFFF));
}

int TableWidget::maxFirstRow() const {
    int n = rows(), room = bodyBox().height(), used = 0;
    // Walks back from the end only as far as one view, however long the table.
    for (int row = n - 1; row >= 0; --row) {
        used += rowHeightOf(row);
        if (used > room) return std::min(row + 1, n - 1);
    }
    return 0;
}

int TableWidget::getLastVisibleRow() const {
    int n = rows(), y = bodyBox().height(), row = first_;
    while (row < n && y > 0) y -= rowHeightOf(row++);
    return row - 1;
}

void TableWidget::setFirst(int row) {
    row = std::clamp(row, 0, maxFirstRow());
    if (row == first_) return;
    stopEditing(true);
    first_ = row;
    updateBar();
    repaint(this);
}

void TableWidget::scrollToRow(int row) { setFirst(row); }

void TableWidget::revealRow(int row, bool centre, int redrawFlag) {
    int n = rows();
    if (n == 0) return;
    row = std::clamp(row, 0, n - 1);
    int room = bodyBox().height(), want = first_;
    if (centre) {
        int above = (room - rowHeightOf(row)) / 2, used = 0;
        want = row;
        while (want > 0 && used + rowHeightOf(want - 1) <= above) used += rowHeightOf(--want);
    } else if (row < first_) {
        want = row;
    } else {
        // Whole in view already? The walk stops once the view is full.
        int used = 0, r = first_;
        while (r <= row && used <= room) used += rowHeightOf(r++);
        if (used > room) {
            used = rowHeightOf(row);
            want = row;
            while (want > 0 && used + rowHeightOf(want - 1) <= room) used += rowHeightOf(--want);
        }
    }
    want = std::clamp(want, 0, maxFirstRow());
    if (want != first_) {
        stopEditing(true);
        first_ = want;
        updateBar();
    }
    if (redrawFlag) repaint(this);
}

void TableWidget::updateBar() {
    if (!bar_) return;
    int n = rows(), top = maxFirstRow();
    int shown = std::max(1, getLastVisibleRow() - first_ + 1);
    bar_->setThumbSize(top > 0 && n > 0 ? std::min(1.0, static_cast<double>(shown) / n) : 1.0, kNoRedraw);
    bar_->setThumbPos(top > 0 ? static_cast<double>(first_) / top : 0.0, kNoRedraw);
    repaint(bar_);
}

XY<int> TableWidget::getCellAt(XY<int> p) const {
    BoxInt body = bodyBox(), header = headerBox();
    int col = -1, edge = body.x1;
    for (int c = 0; c < numColumns() && col < 0; ++c) {
        int w = widths_[static_cast<std::size_t>(c)];
        if (p.x >= edge && p.x < edge + w && p.x < body.x2) col = c;
        edge += w;
    }
    if (col < 0) return {-1, -1};
    if (header.contains(p)) return {col, -1};
    if (!body.contains(p)) return {-1, -1};
    int n = rows(), y = body.y2;
    for (int row = first_; row < n && y > body.y1; ++row) {
        int h = rowHeightOf(row);
        if (p.y >= y - h) return {col, row};
        y -= h;
    }
    return {-1, -1};
}

XY<int> TableWidget::getCellForMouseEvent(const Event& e) const { return getCellAt(screenXYToGlobXY(e.screenPos())); }

BoxInt TableWidget::getCellBox(const XY<int>& cell) const {
    if (cell.x < 0 || cell.x >= numColumns() || cell.y < first_ || cell.y >= rows()) return {};
    BoxInt body = bodyBox();
    int x = body.x1;
    for (int c = 0; c < cell.x; ++c) x += widths_[static_cast<std::size_t>(c)];
    int y = body.y2;
    for (int row = first_; row < cell.y; ++row) {
        y -= rowHeightOf(row);
        if (y <= body.y1) return {};
    }
    BoxInt box(x, y - rowHeightOf(cell.y), x + widths_[static_cast<std::size_t>(cell.x)], y);
    BoxInt shown = box;
    return shown.clip(body).isEmpty() ? BoxInt() : box;
}

void TableWidget::resize(double w, double h) {
    stopEditing(true);
    StandardPanel::resize(w, h);
    if (!bar_) return;
    bar_->resize(ScrollBar::thickness(), std::max(0, bodyBox().height()));
    layoutColumns();
    first_ = std::clamp(first_, 0, maxFirstRow());
    updateBar();
}

// ---- the current cell and editing ---------------------------------------------

void TableWidget::notify(const char* message) {
    if (Glob* owner = logicalParent()) sendMessage(message, owner, this);
}

void TableWidget::setCurPos(const XY<int>& cell, int flags) {
    XY<int> old = cur_;
    int n = rows();
    cur_ = {std::clamp(cell.x, 0, std::max(0, numColumns() - 1)), n == 0 ? -1 : std::clamp(cell.y, 0, n - 1)};
    if ((flags & kRevealCell) && cur_.y >= 0) revealRow(cur_.y, false, kNoRedraw);
    if (flags & (kRedrawTable | kRedrawRow)) repaint(this);
    if ((flags & kNotify) && !(cur_ == old)) notify(currentCellChangedMsg);
}

void TableWidget::setHighlightCurrentRow(bool h) {
    highlight_ = h;
    repaint(this);
}

void TableWidget::hideTextEntryBox(bool hide) {
    noEditing_ = hide;
    if (hide) stopEditing(true);
}

CellContext TableWidget::makeContext(const XY<int>& cell, const BoxInt& box) const {
    CellContext ctx;
    ctx.table = const_cast<TableWidget*>(this);
    ctx.adaptor = adaptor_;
    ctx.column = getColumn(cell.x);
    ctx.canvas = canvas();
    ctx.cell = cell;
    ctx.box = box;
    ctx.clip = box;
    ctx.palette = getPalette();
    ctx.current = cell == cur_;
    return ctx;
}

bool TableWidget::startEditing(const XY<int>& cell) {
    if (noEditing_ || !adaptor_ || cell.x < 0 || cell.x >= numColumns() || cell.y < 0 || cell.y >= rows()) return false;
    if (!adaptor_->canEdit(cell)) return false;
    stopEditing(true);
    revealRow(cell.y, false, kNoRedraw);
    BoxInt box = getCellBox(cell);
    if (box.isEmpty()) return false;
    Zn::Ptr<iCellEditor> editor = editorFor(cell);
    CellContext ctx = makeContext(cell, box);
    Glob* w = editor->getWidget(ctx);
    if (!w || w->parent() != this) return false;
    w->resize(box.width(), box.height());
    setWidgetPos(w, BottomLeft(box.x1, box.y1));
    w->setVisible(true);
    editing_ = cell;
    editingEditor_ = editor;
    set_kbd_focus(w);
    w->redraw();
    return true;
}

void TableWidget::stopEditing(bool keep) {
    if (!isEditing() || !editingEditor_) {
        editing_ = {-1, -1};
        return;
    }
    // Forget the edit first: leaving the box posts a commit that must find nothing to do.
    XY<int> cell = editing_;
    Zn::Ptr<iCellEditor> editor = editingEditor_;
    editing_ = {-1, -1};
    editingEditor_.reset();
    CellContext ctx = makeContext(cell, getCellBox(cell));
    bool changed = keep ? editor->storeData(ctx) : (editor->reset(), false);
    bool focused = editor->hasFocus();
    editor->hide();
    if (focused) set_kbd_focus(this);
    repaint(this);
    if (changed) notify(cellEditedMsg);
}

// ---- painting ---------------------------------------------------------------

void TableWidget::drawBackground() {
    CanvasRenderer r(canvas());
    r.fill(getPalette().childWindow(kChildList));
    paintHeader(r);
    BoxInt body = bodyBox();
    if (body.isEmpty() || !adaptor_) return;
    Canvas* c = canvas();
    XY<int> o = c->origin();
    c->pushOrigin(o, body.translated(o.x, o.y));
    int n = rows(), y = body.y2;
    for (int row = first_; row < n && y > body.y1; ++row) {
        int h = rowHeightOf(row);
        paintRow(r, row, BoxInt(body.x1, y - h, body.x2, y));
        y -= h;
    }
    c->popOrigin();
}

void TableWidget::paintHeader(const CanvasRenderer& r) {
    BoxInt header = headerBox();
    if (header.isEmpty()) return;
    const Palette& p = getPalette();
    r.render(Glib::RectDescription(header, p.window(kShadeDark)));
    Colour rule = p.window(kShadeDarkest);
    int x = header.x1, margin = TableColumnDescription::textMargin();
    for (int col = 0; col < numColumns(); ++col) {
        int w = widths_[static_cast<std::size_t>(col)];
        Glib::TextDescription t(BoxInt(x + margin, header.y1, x + w - margin, header.y2),
                                columns_[static_cast<std::size_t>(col)].getTitle().getString(), getFont(), p.text());
        t.ellipsize = true;
        r.render(t);
        x += w;
        r.render(Glib::LineDescription({double(x - 1), double(header.y1)}, {double(x - 1), double(header.y2 - 1)}, rule));
    }
    r.render(Glib::LineDescription({double(header.x1), double(header.y1)}, {double(header.x2 - 1), double(header.y1)}, rule));
}

void TableWidget::paintRow(const CanvasRenderer& r, int row, const BoxInt& rowBox) {
    const Palette& p = getPalette();
    bool lit = highlight_ && row == cur_.y;
    if (lit) r.render(Glib::RectDescription(rowBox, p.selection(hasKbdFocus() ? kSelectionFocused : kSelectionUnfocused)));
    Colour grid = Colour::mix(p.childWindow(kChildList), p.text(), 0.15);
    Canvas* c = canvas();
    XY<int> o = c->origin();
    int x = rowBox.x1;
    for (int col = 0; col < numColumns(); ++col) {
        const TableColumnDescription& column = columns_[static_cast<std::size_t>(col)];
        int w = widths_[static_cast<std::size_t>(col)];
        BoxInt box(x, rowBox.y1, x + w, rowBox.y2);
        x += w;
        XY<int> cell(col, row);
        CellContext ctx = makeContext(cell, box);
        ctx.highlighted = lit;
        if (lit)
            ctx.palette.setColour(Palette::kText, p.text(kTextOnSelection));
        else if (column.hasColour())
            r.render(Glib::RectDescription(box, column.getColour()));
        adaptor_->getFieldColours(cell, ctx.palette);
        // A cell's text never spills into its neighbours.
        c->pushOrigin(o, box.translated(o.x, o.y));
        editorFor(cell)->drawField(ctx);
        c->popOrigin();
        if (col + 1 < numColumns()) r.render(Glib::LineDescription({double(x - 1), double(box.y1)}, {double(x - 1), double(box.y2 - 1)}, grid));
    }
    if (hasKbdFocus() && row == cur_.y) {
        BoxInt box = getCellBox(cur_);
        if (!box.isEmpty()) {
            Glib::RectDescription ring(box, Colour());
            ring.filled = false;
            ring.outline = p.text(kTextDimmed);
            ring.outlineWidth = 1;
            r.render(ring);
        }
    }
}

// ---- input ------------------------------------------------------------------

int TableWidget::handleMouseEvent(const Event& e) {
    if (mouse_wheel_event(e)) {
        if (e.wheelDelta() == 0) return 0;
        setFirst(first_ + (e.wheelDelta() > 0 ? -kWheelRows : kWheelRows));
        return 1;
    }
    XY<int> p = e.pos();
    if (sizingColumn_ >= 0) {
        int left = bodyBox().x1;
        for (int c = 0; c < sizingColumn_; ++c) left += widths_[static_cast<std::size_t>(c)];
        setColumnWidth(sizingColumn_, p.x - left);
        if (mouse_up_event(e)) sizingColumn_ = -1;
        return 1;
    }
    bool press = mouse_down_event(e) && mouse_left_event(e);
    if (press && headerBox().contains(p)) {
        sizingColumn_ = columnEdgeAt(p.x);
        if (sizingColumn_ < 0 && adaptor_) {
            XY<int> cell = getCellAt(p);
            if (cell.x >= 0) adaptor_->handleHeaderClick(cell.x);
        }
        return 1;
    }
    XY<int> cell = press || pressed_.y < 0 ? getCellAt(p) : pressed_;
    if (!adaptor_ || cell.x < 0 || cell.y < 0) return mouse_move_event(e) ? 0 : 1;
    if (press) stopEditing(true);
    if (!mouse_move_event(e) || pressed_.y >= 0) {
        IdStamp alive = stamp();
        Zn::Ptr<iCellEditor> editor = editorFor(cell);
        // The widget of the cell being edited has its own events already.
        bool own = isEditing() && cell == editing_;
        bool taken = (!own && editor->handleEvent(makeContext(cell, getCellBox(cell)), e)) || adaptor_->handleMouseClickEvent(cell, e) != 0;
        if (!EventHandler::valid(this, alive)) return 1;
        if (press) pressed_ = cell;
        if (mouse_up_event(e)) pressed_ = {-1, -1};
        if (taken) return 1;
    }
    if (!press) return mouse_move_event(e) ? 0 : 1;
    if (e.clickCount() >= 2 && cell == cur_) {
        if (!startEditing(cell)) notify(cellActivatedMsg);
        return 1;
    }
    setCurPos(cell, kRevealCell | kNotify | kRedrawTable);
    return 1;
}

int TableWidget::handleKeyboardEvent(int key) {
    int page = std::max(1, getLastVisibleRow() - first_);
    XY<int> to = cur_;
    switch (Keys::plain(key)) {
    case Keys::Up: to.y -= 1; break;
    case Keys::Down: to.y += 1; break;
    case Keys::PageUp: to.y -= page; break;
    case Keys::PageDown: to.y += page; break;
    case Keys::Home: to.y = 0; break;
    case Keys::End: to.y = rows() - 1; break;
    case Keys::Left: to.x -= 1; break;
    case Keys::Right: to.x += 1; break;
    case Keys::Return:
    case Keys::KeypadEnter:
    case Keys::F2:
        if (cur_.y < 0) return 0;
        if (!startEditing(cur_)) notify(cellActivatedMsg);
        return 1;
    default: return StandardPanel::handleKeyboardEvent(key);
    }
    if (rows() == 0) return 1;
    setCurPos({std::max(0, to.x), std::max(0, to.y)}, kRevealCell | kNotify | kRedrawTable);
    return 1;
}

int TableWidget::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if (editingEditor_ && editingEditor_->isResponsibleForMessage(message, sender)) {
        stopEditing(message == cellCommitMsg);
        return 1;
    }
    if (message == cellCommitMsg || message == cellCancelMsg) return 1; // from an edit already over
    if (sender != bar_ || !ScrollBar::isScrollBarMsg(message)) return StandardPanel::handleMessageEvent(message, sender);
    if (message == ScrollBar::upButtonPressedMsg) {
        setFirst(first_ - 1);
    } else if (message == ScrollBar::downButtonPressedMsg) {
        setFirst(first_ + 1);
    } else if (message == ScrollBar::thumbMovedMsg) {
        int want = static_cast<int>(std::lround(bar_->thumbPos() * maxFirstRow()));
        if (want != first_) {
            stopEditing(true);
            first_ = want;
            repaint(this);
        }
    }
    return 1;
}

MouseCursorID TableWidget::contextCursor(const XY<int>& p) const {
    if (headerBox().contains(p)) return columnEdgeAt(p.x) >= 0 ? kCursorResizeHorizontal : kCursorArrow;
    XY<int> cell = getCellAt(p);
    if (!adaptor_ || cell.x < 0 || cell.y < 0) return StandardPanel::contextCursor(p);
    MouseCursorID cursor = editorFor(cell)->contextCursor(makeContext(cell, getCellBox(cell)), p);
    return cursor == kCursorArrow ? adaptor_->contextCursor(cell) : cursor;
}

UIString TableWidget::contextString() const {
    XY<int> cell = getCellAt(screenXYToGlobXY(GlobManager::instance().input().mousePos()));
    if (!adaptor_ || cell.x < 0 || cell.y < 0) return StandardPanel::contextString();
    UIString s = editorFor(cell)->contextString(makeContext(cell, getCellBox(cell)));
    return s.empty() ? StandardPanel::contextString() : s;
}
