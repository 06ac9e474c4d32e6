#include "GalleryProbe.h"

#include "colour/ColourDataValWidget.h"
#include "controls/Button.h"
#include "controls/Checkbox.h"
#include "controls/DropDownMenuButton.h"
#include "controls/Slider.h"
#include "controls/TableWidget.h"
#include "controls/TextBoxBase.h"
#include "controls/TextLabel.h"
#include "controls/TitleTextBox.h"
#include "core/StringFromFloat.h"
#include "core/Utf8.h"
#include "draw/Screen.h"
#include "entry/IPAddressEntryBox.h"
#include "glob/Glob.h"
#include "glob/GlobManager.h"
#include "glob/Messaging.h"

#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

// A box inside a glob in window coordinates: from the top left, y growing downward.
BoxInt windowBox(const Glob* g, const BoxInt& local) {
    int h = GlobManager::instance().screen().height();
    XY<int> p = g->screenPos();
    int top = h - p.y - local.y2;
    return BoxInt(p.x + local.x1, top, p.x + local.x2, top + local.height());
}

BoxInt windowBox(const Glob* g) { return windowBox(g, BoxInt(0, 0, g->width(), g->height())); }

std::string text(const LightweightString<wchar_t>& s) {
    std::string out = toUTF8(s).str();
    // One line a value: a line break in a text stays readable and cannot end the line.
    for (std::size_t at = out.find('\n'); at != std::string::npos; at = out.find('\n', at + 2)) out.replace(at, 1, "\\n");
    return out;
}

void visitNamed(const std::function<void(Glob*)>& f) {
    for (Glob* root : GlobManager::instance().roots())
        root->visitSubtree([&](Glob* g) {
            if (!g->name().empty()) f(g);
            return true;
        });
}

// "row NAME INDEX X Y W H TEXT" for each row the table shows, from its first column.
void printRows(std::FILE* out, const TableWidget& table) {
    for (int r = table.getFirstVisibleRow(); r <= table.getLastVisibleRow(); ++r) {
        BoxInt cell = windowBox(&table, table.getCellBox({0, r}));
        std::fprintf(out, "row %s %d %d %d %d %d %s\n", table.name().c_str(), r, cell.x1, cell.y1, cell.width(), cell.height(),
                     text(table.getAdaptor()->getFieldText({0, r})).c_str());
    }
}

const Glob* namedAncestor(const Glob* g) {
    while (g && g->name().empty()) g = g->parent();
    return g;
}

} // namespace

void GalleryProbe::printRoots(std::FILE* out) {
    int h = GlobManager::instance().screen().height();
    for (Glob* root : GlobManager::instance().roots()) {
        XY<int> close(-1, -1);
        root->visitChildren([&](Glob* g) {
            if (std::strcmp(g->idstring(), "FurnitureButton")) return true;
            XY<int> c = g->screenPos() + XY<int>(g->width() / 2, g->height() / 2);
            close = {c.x, h - 1 - c.y};
            return false;
        });
        BoxInt b = windowBox(root);
        std::fprintf(out, "root %s %d %d %d %d close %d %d\n", root->idstring(), b.x1, b.y1, b.width(), b.height(), close.x, close.y);
    }
    std::fflush(out);
}

void GalleryProbe::printWidgets(std::FILE* out) {
    for (Glob* root : GlobManager::instance().roots())
        root->visitSubtree([&](Glob* g) {
            BoxInt b = windowBox(g);
            const char* name = g->name().empty() ? "-" : g->name().c_str();
            std::fprintf(out, "widget %s %s %d %d %d %d\n", name, g->idstring(), b.x1, b.y1, b.width(), b.height());
            if (auto* table = dynamic_cast<const TableWidget*>(g); table && table->getAdaptor() && !g->name().empty()) printRows(out, *table);
            return true;
        });
    std::fflush(out);
}

std::optional<std::string> GalleryProbe::valueOf(const Glob* g) {
    if (auto* a = dynamic_cast<const IPAddressEntryBox*>(g)) return text(a->getURI());
    if (auto* c = dynamic_cast<const Checkbox*>(g)) return c->getState() ? "on" : "off";
    if (auto* d = dynamic_cast<const DropDownMenuButton*>(g)) return text(d->getSelectedItemNameW());
    auto* button = dynamic_cast<const Button*>(g);
    if (button && button->isLatching()) return button->isLatched() ? "on" : "off";
    if (auto* t = dynamic_cast<const TextBoxBase*>(g)) return text(t->getString());
    if (auto* t = dynamic_cast<const TitleTextBox*>(g)) return text(t->getString());
    if (auto* l = dynamic_cast<const TextLabel*>(g)) return text(l->getText().getString());
    if (auto* w = dynamic_cast<const ColourDataValWidget*>(g)) {
        const ColourData c = w->getWidgetValue();
        return std::string(StringFromFloat(c.getHue()).c_str()) + " " + StringFromFloat(c.getSaturation()).c_str() + " " +
               StringFromFloat(c.getValue()).c_str();
    }
    if (auto* s = dynamic_cast<const Slider*>(g)) {
        std::ostringstream out;
        out << s->getPosition();
        return out.str();
    }
    return std::nullopt;
}

bool GalleryProbe::capture() {
    if (!reporting()) return true;
    visitNamed([&](Glob* g) {
        if (auto v = valueOf(g)) values_[g->name().str()] = std::string(g->idstring()) + " " + *v;
    });
    const Glob* focused = namedAncestor(get_kbd_focus());
    focus_ = focused ? focused->name().str() : "-";
    std::string now = reportText();
    if (now == written_) return true;
    if (!write(now)) return false;
    written_ = now;
    return true;
}

std::string GalleryProbe::reportText() const {
    std::string out;
    for (const auto& [name, value] : values_) out += "value " + name + " " + value + "\n";
    return out + "focus " + focus_ + "\n";
}

bool GalleryProbe::write(const std::string& text) const {
    std::string temporary = reportPath_ + ".part";
    {
        std::ofstream file(temporary, std::ios::binary | std::ios::trunc);
        if (!(file << text)) return false;
    }
    std::error_code ec;
    std::filesystem::rename(temporary, reportPath_, ec);
    return !ec;
}
