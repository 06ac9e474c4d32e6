#include "GlobTreePanel.h"

#include "GlobInspector.h"
#include "controls/Button.h"
#include "controls/TreeView.h"
#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "glob/makeTopLevel.h"
#include "platform/CommandRegistrar.h"

#include <string>

namespace {
const CommandRegistrar command(
    GlobTreePanel::kCommand, [](const Zn::Ptr<iObject>&) { GlobTreePanel::create(); }, GlobInspector::kCommandFlags, GlobInspector::kCommandGroup);

constexpr int kFurniture = StandardPanel::kTitleBar | StandardPanel::kCloseBox;
constexpr int kTreeWidthInRows = 16;
constexpr int kDetailsWidthInRows = 14;
constexpr int kHeightInRows = 16;
// Legends longer than this are cut, with "..".
constexpr std::size_t kLegendLength = 32;

LightweightString<wchar_t> wide(const char* s) {
    LightweightString<wchar_t> out;
    for (const char* p = s; p && *p; ++p) out += static_cast<wchar_t>(*p);
    return out;
}

LightweightString<wchar_t> num(int n) { return LightweightString<wchar_t>(std::to_wstring(n).c_str()); }
LightweightString<wchar_t> sizeText(XY<int> s) { return num(s.x) + L" x " + num(s.y); }

LightweightString<wchar_t> legendOf(Glob* g) {
    LightweightString<wchar_t> text;
    if (auto* panel = dynamic_cast<StandardPanel*>(g)) text = panel->getTitle().getString();
    if (auto* button = dynamic_cast<Button*>(g)) text = button->getLabel().getString();
    if (text.empty()) text = wide(g->name().c_str());
    if (text.size() > kLegendLength) text = LightweightString<wchar_t>(text.view().substr(0, kLegendLength - 2)) + L"..";
    return text;
}
} // namespace

GlobTreePanel::GlobTreePanel(const InitArgs& args) : MessageBase(args) {
    setBorder(getDefaultBorder());
    addStandardWidgets(kFurniture);
    setTitle(UIString(LightweightString<wchar_t>(L"Glob Tree")), UifStd::instance().getTitleFont(), kNoRedraw);
    setName(kTitle);
    const int row = UifStd::instance().getRowHeight();
    TreeView::InitArgs treeArgs(static_cast<unsigned short>(kTreeWidthInRows * row), static_cast<unsigned short>(getUserArea().height()), this);
    tree_ = createWidget<TreeView>(treeArgs, Glob::UserTopLeft(0, 0));
    tree_->setName("globTree");
}

XY<int> GlobTreePanel::calcSize() {
    const int row = UifStd::instance().getRowHeight();
    return calcPanelSize({(kTreeWidthInRows + kDetailsWidthInRows) * row, kHeightInRows * row}, kFurniture, getDefaultBorder());
}

GlobTreePanel* GlobTreePanel::create() {
    const XY<int> size = calcSize();
    InitArgs args(static_cast<unsigned short>(size.x), static_cast<unsigned short>(size.y));
    return makeTopLevel<GlobTreePanel>(args, Glob::Centre(0, 0));
}

iTreeViewAdaptor::ItemId GlobTreePanel::idOf(Glob* glob) {
    auto it = ids_.find(glob);
    // An id stays with its glob; an address that a new glob has taken gets a new id.
    if (it != ids_.end() && globs_[it->second - 1].refersTo(glob)) return it->second;
    globs_.emplace_back(glob);
    const ItemId id = globs_.size();
    ids_[glob] = id;
    return id;
}

Glob* GlobTreePanel::globOf(ItemId item) const { return item == 0 || item > globs_.size() ? nullptr : globs_[item - 1].get(); }

std::vector<iTreeViewAdaptor::ItemId> GlobTreePanel::getChildren(ItemId parent) {
    std::vector<ItemId> out;
    if (parent == 0) {
        for (Glob* root : GlobManager::instance().roots()) out.push_back(idOf(root));
        return out;
    }
    if (Glob* g = globOf(parent))
        g->visitChildren([&](Glob* child) {
            out.push_back(idOf(child));
            return true;
        });
    return out;
}

bool GlobTreePanel::hasChildren(ItemId item) {
    if (item == 0) return !GlobManager::instance().roots().empty();
    bool any = false;
    if (Glob* g = globOf(item))
        g->visitChildren([&](Glob*) {
            any = true;
            return false;
        });
    return any;
}

LightweightString<wchar_t> GlobTreePanel::getItemText(ItemId item) {
    Glob* g = globOf(item);
    if (!g) return {};
    LightweightString<wchar_t> text = wide(g->idstring());
    if (!g->name().empty()) text += L" \"" + wide(g->name().c_str()) + L"\"";
    return text;
}

std::vector<LightweightString<wchar_t>> GlobTreePanel::detailsOf(Glob* g) {
    if (!is_good_glob_ptr(g)) return {};
    const std::optional<XY<int>> maxSize = g->getMaxSize();
    return {L"Size : " + sizeText(g->size()),
            L"Position : " + num(g->getX()) + L", " + num(g->getY()),
            LightweightString<wchar_t>(L"Weight : ") + (g->isLightweight() ? L"light" : L"heavy"),
            LightweightString<wchar_t>(L"Visible : ") + (g->isVisible() ? L"true" : L"false"),
            L"Minimum Size : " + sizeText(g->getMinSize()),
            L"Maximum Size : " + (maxSize ? sizeText(*maxSize) : LightweightString<wchar_t>(L"none")),
            L"Legend : " + legendOf(g)};
}

void GlobTreePanel::handleItemSelected(ItemId item) {
    details_ = detailsOf(globOf(item));
    redraw();
}

BoxInt GlobTreePanel::detailsBox() const {
    const BoxInt u = getUserArea();
    return BoxInt(u.x1 + tree_->width() + UifStd::instance().getWidgetGap(), u.y1, u.x2, u.y2);
}

void GlobTreePanel::drawBackground() {
    MessageBase::drawBackground();
    const BoxInt box = detailsBox();
    const int row = UifStd::instance().getRowHeight();
    CanvasRenderer r(canvas());
    int top = box.y2;
    for (const LightweightString<wchar_t>& line : details_) {
        Glib::TextDescription t(BoxInt(box.x1, top - row, box.x2, top), line, getFont(), getPalette().text(kTextNormal));
        t.ellipsize = true;
        r.render(t);
        top -= row;
    }
}
