#pragma once

#include "FBItem.h"
#include "FileFilter.h"
#include "core/LightweightVector.h"

#include <vector>

/// The entries of one folder, read from the file system at once, and the part of
/// them a file browser shows: folders first, then files that pass the filter, each
/// group sorted by name without regard to case (or by size or date). Folders are
/// never filtered out. Reading never throws: a folder that cannot be opened lists
/// nothing and says so.
class FolderListing {
public:
    enum eSortKey { kByName = 0, kBySize = 1, kByDate = 2 };

    // Reads `folder` (its bytes as the file system has them). Names that begin with
    // a dot are left out unless `includeHidden`. False when the folder cannot be read.
    bool read(const LightweightString<char>& folder, bool includeHidden = false);
    bool isReadable() const { return readable_; }
    const LightweightString<char>& folder() const { return folder_; }

    void setFilter(const FileFilter& filter, bool foldersOnly = false);
    const FileFilter& getFilter() const { return filter_; }
    void sortBy(eSortKey key, bool ascending = true);
    eSortKey sortKey() const { return key_; }
    bool isAscending() const { return ascending_; }

    // What is shown, in order.
    const LightweightVector<FBItem>& shown() const { return shown_; }
    int numShown() const { return static_cast<int>(shown_.size()); }
    const FBItem* item(int index) const;
    // The shown index of the entry with this native path, or -1.
    int indexOf(const LightweightString<char>& nativePath) const;
    // Every entry read, shown or not.
    std::size_t numEntries() const { return all_.size(); }

private:
    void rebuild();

    LightweightString<char> folder_;
    std::vector<FBItem> all_;
    std::vector<LightweightString<wchar_t>> keys_;
    LightweightVector<FBItem> shown_;
    FileFilter filter_;
    bool foldersOnly_ = false;
    bool readable_ = false;
    eSortKey key_ = kByName;
    bool ascending_ = true;
};
