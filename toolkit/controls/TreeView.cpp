#include "TreeView.h"

#include "ArrowGlyph.h"
#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"

#include <algorithm>

namespace {
// Deeper than any real tree; it stops an adaptor whose items contain themselves.
constexpr int kMaxDepth = 64;
} // namespace

TreeView::TreeView(const InitArgs& args) : ScrollList(args), adaptor_(args.adaptor) { rebuild(); }

void TreeView::setAdaptor(iTreeViewAdaptor* adaptor) {
    adaptor_ = adaptor;
    expanded_.clear();
    ScrollList::setItems({});
    rebuild();
}

void TreeView::refresh() { rebuild(); }

void TreeView::addRows(ItemId parent, int depth, std::vector<ItemId>& path, std::vector<LightweightString<wchar_t>>& texts) {
    if (depth >= kMaxDepth) return;
    for (ItemId id : adaptor_->getChildren(parent)) {
        // An item that is its own ancestor would never end.
        if (id == 0 || std::find(path.begin(), path.end(), id) != path.end()) continue;
        bool open = expanded_.count(id) != 0;
        bool children = adaptor_->hasChildren(id);
        rows_.push_back({id, depth, children});
        texts.push_back(adaptor_->getItemText(id));
        if (open && children) {
            path.push_back(id);
            addRows(id, depth + 1, path, texts);
            path.pop_back();
        }
    }
}

void TreeView::rebuild() {
    ItemId chosen = getSelectedItem();
    int first = getFirstVisible();
    rows_.clear();
    std::vector<LightweightString<wchar_t>> texts;
    if (adaptor_) {
        std::vector<ItemId> path;
        addRows(0, 0, path, texts);
    }
    Drawable::disableRedraws();
    ScrollList::setItems(texts);
    scrollTo(first);
    if (int row = rowOfItem(chosen); row >= 0) select(row, false);
    Drawable::enableRedraws();
}

TreeView::ItemId TreeView::itemAtRow(int row) const {
    return row >= 0 && row < static_cast<int>(rows_.size()) ? rows_[static_cast<std::size_t>(row)].id : 0;
}

int TreeView::depthOfRow(int row) const { return row >= 0 && row < static_cast<int>(rows_.size()) ? rows_[static_cast<std::size_t>(row)].depth : 0; }

int TreeView::rowOfItem(ItemId item) const {
    if (item == 0) return -1;
    for (std::size_t i = 0; i < rows_.size(); ++i)
        if (rows_[i].id == item) return static_cast<int>(i);
    return -1;
}

void TreeView::expand(ItemId item) {
    if (item == 0 || !expanded_.insert(item).second) return;
    rebuild();
}

void TreeView::collapse(ItemId item) {
    if (expanded_.erase(item) == 0) return;
    rebuild();
}

void TreeView::toggle(ItemId item) { isExpanded(item) ? collapse(item) : expand(item); }

void TreeView::expandAll(int depth) {
    if (!adaptor_) return;
    std::vector<ItemId> level = adaptor_->getChildren(0);
    // Each item is opened once, so that a tree whose items recur stays finite.
    std::set<ItemId> seen;
    for (int d = 0; d < std::min(depth, kMaxDepth) && !level.empty(); ++d) {
        std::vector<ItemId> next;
        for (ItemId id : level) {
            if (id == 0 || !seen.insert(id).second || !adaptor_->hasChildren(id)) continue;
            expanded_.insert(id);
            for (ItemId c : adaptor_->getChildren(id)) next.push_back(c);
        }
        level = std::move(next);
    }
    rebuild();
}

bool TreeView::selectItem(ItemId item, bool notify) {
    int row = rowOfItem(item);
    if (row < 0) return false;
    select(row, notify);
    return true;
}

BoxInt TreeView::openerBox(int row, const BoxInt& rowBox) const {
    int x = rowBox.x1 + depthOfRow(row) * UifStd::instance().getTextIndent();
    return BoxInt(x, rowBox.y1, x + rowBox.height(), rowBox.y2);
}

void TreeView::drawItem(const CanvasRenderer& r, int index, const BoxInt& box, bool selected) {
    // Rows set with setItems instead of read from the adaptor are plain text rows.
    if (index >= static_cast<int>(rows_.size())) return ScrollList::drawItem(r, index, box, selected);
    const Palette& p = getPalette();
    if (selected) r.render(Glib::RectDescription(box, p.selection(hasKbdFocus() ? kSelectionFocused : kSelectionUnfocused)));
    Colour ink = selected ? p.text(kTextOnSelection) : p.text();
    BoxInt opener = openerBox(index, box);
    const Row& row = rows_[static_cast<std::size_t>(index)];
    if (row.hasChildren) ArrowGlyph::draw(r, opener, isExpanded(row.id) ? ArrowGlyph::kDown : ArrowGlyph::kRight, ink);
    Glib::TextDescription t(BoxInt(opener.x2, box.y1, box.x2 - UifStd::instance().getRowGap(), box.y2), getItem(index), getFont(), ink);
    t.ellipsize = true;
    r.render(t);
}

bool TreeView::handleItemMouse(int index, XY<int> inRow, const Event& e) {
    if (!mouse_down_event(e) || !mouse_left_event(e) || index >= static_cast<int>(rows_.size())) return false;
    const Row& row = rows_[static_cast<std::size_t>(index)];
    BoxInt rowBox(0, 0, listArea().width(), getLineHeight());
    if (!row.hasChildren || !openerBox(index, rowBox).contains(inRow)) return false;
    toggle(row.id);
    return true;
}

int TreeView::handleItemKey(int key) {
    int cur = getSelectedIndex();
    if (cur < 0 || cur >= static_cast<int>(rows_.size())) return 0;
    const Row row = rows_[static_cast<std::size_t>(cur)];
    key = Keys::plain(key);
    if (key == Keys::Right) {
        if (row.hasChildren && !isExpanded(row.id)) {
            expand(row.id);
        } else if (row.hasChildren && cur + 1 < numItems() && depthOfRow(cur + 1) > row.depth) {
            moveTo(cur + 1, 0);
        }
        return 1;
    }
    if (key == Keys::Left) {
        if (row.hasChildren && isExpanded(row.id)) {
            collapse(row.id);
            return 1;
        }
        for (int i = cur - 1; i >= 0; --i)
            if (depthOfRow(i) < row.depth) {
                moveTo(i, 0);
                break;
            }
        return 1;
    }
    return 0;
}

void TreeView::itemActivated(int index) {
    ItemId id = itemAtRow(index);
    if (id == 0) return;
    if (index < static_cast<int>(rows_.size()) && rows_[static_cast<std::size_t>(index)].hasChildren) toggle(id);
    if (adaptor_) adaptor_->handleItemActivated(id);
}

void TreeView::selectionChanged() {
    if (adaptor_ && getSelectedItem()) adaptor_->handleItemSelected(getSelectedItem());
}
