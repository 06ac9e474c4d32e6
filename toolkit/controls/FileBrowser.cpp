#include "FileBrowser.h"

#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "glob/Messaging.h"
#include "glob/makeTopLevel.h"
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
    const bool given = !(position == XY<int>(0, 0)) && !(position == XY<int>(kUnset, kUnset));
    auto* browser = makeTopLevel<FileBrowser>(args, given ? Glob::BottomLeft(position) : Glob::Centre(0, 0));
    set_kbd_focus(browser->table());
    return browser;
}
