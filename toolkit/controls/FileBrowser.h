#pragma once

#include "FileBrowserBase.h"

/// The file browser as a top-level panel on the screen: a title bar with a close
/// box, a resize grip, and a list of name, size and date of change. make() builds,
/// places and realizes one; it belongs to GlobManager from then on and deletes
/// itself once it has answered, so keep a GlobHandle<FileBrowser> to it, not a pointer.
class FileBrowser : public FileBrowserBase {
public:
    explicit FileBrowser(const FileBrowserBase::InitArgs& args);

    // Puts the browser's bottom left at `position` on the screen, or centres it on the
    // screen when no position is given: (0, 0), or (kUnset, kUnset). It is kept on the
    // screen, and the list has the keyboard focus.
    static FileBrowser* make(const FileBrowserBase::InitArgs& args, XY<int> position = {});

    // Name, then size ("size", not in folder mode) and date of change ("date") in
    // columns of fixed width.
    std::vector<TableColumnDescription> getColumnDefinitions() override;
};
