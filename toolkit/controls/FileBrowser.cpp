#include "FileBrowser.h"

#include "glob/GlobManager.h"
#include "glob/Messaging.h"
#include "glob/UifStd.h"
#include "platform/ResourceStrings.h"

#include <algorithm>

namespace {

constexpr ResId kSizeId = 201, kModifiedId = 202;

TableColumnDescription fixedColumn(ResId title, const wchar_t* widest, const char* key) {
    const int width = std::max(TableColumnDescription::calcSizeFor(widest), TableColumnDescription::calcSizeFor(resourceStrW(title)));
    TableColumnDescription column(UIString(title), width);
    column.setSortKey(key);
    return column;
}

} // namespace

FileBrowser::FileBrowser(const FileBrowserBase::InitArgs& args) : FileBrowserBase(args) { init(args, kDefaultFlags); }

std::vector<TableColumnDescription> FileBrowser::getColumnDefinitions() {
    std::vector<TableColumnDescription> columns = FileBrowserBase::getColumnDefinitions();
    // Folders have no size worth a column.
    if (getSelectionMode() != kFolder) columns.push_back(fixedColumn(kSizeId, L"1023.9 MB", "size"));
    columns.push_back(fixedColumn(kModifiedId, L"2000-00-00 00:00", "date"));
    return columns;
}

FileBrowser* FileBrowser::make(const FileBrowserBase::InitArgs& args, XY<int> position) {
    FileBrowserBase::InitArgs a(args);
    a.canvas = nullptr;
    a.isChild = false;
    a.palette = UifStd::instance().getColourScheme();
    const bool given = !(position == XY<int>(0, 0)) && !(position == XY<int>(-1234, -1234));
    const WidgetPosition where = given ? Glob::BottomLeft(position) : Glob::Centre(0, 0);

    Drawable::disableRedraws();
    auto* browser = new FileBrowser(a);
    GlobManager& gm = GlobManager::instance();
    GlobCreationInfo info(static_cast<unsigned short>(browser->width()), static_cast<unsigned short>(browser->height()));
    browser->setupRootPos(gm.getSafePosForGlob(nullptr, gm.getPosForGlob(info, where), browser->size()));
    gm.realize(browser);
    set_kbd_focus(browser->table());
    Drawable::enableRedraws();
    return browser;
}
