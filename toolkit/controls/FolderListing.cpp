#include "FolderListing.h"

#include "core/Utf8.h"

#include <algorithm>
#include <chrono>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

FBItem itemOf(const fs::directory_entry& entry) {
    std::error_code ec;
    FBItem item;
    item.nativePath = LightweightString<char>(entry.path().string());
    item.path = fromUTF8(item.nativePath);
    item.name = fromUTF8(LightweightString<char>(entry.path().filename().string()));
    // A link counts as what it points at; a broken one as a file of no size.
    item.isFolder = entry.is_directory(ec);
    if (!item.isFolder) {
        std::uintmax_t size = entry.file_size(ec);
        item.size = ec ? 0 : size;
    }
    auto time = entry.last_write_time(ec);
    if (!ec) {
        auto since = std::chrono::file_clock::to_sys(time).time_since_epoch();
        item.modified = std::chrono::duration_cast<std::chrono::seconds>(since).count();
    }
    return item;
}

} // namespace

bool FolderListing::read(const LightweightString<char>& folder, bool includeHidden) {
    folder_ = folder;
    all_.clear();
    std::error_code ec;
    fs::directory_iterator it(fs::path(folder.str()), ec);
    readable_ = !ec && !folder.empty();
    for (fs::directory_iterator end; readable_ && !ec && it != end; it.increment(ec)) {
        const std::string leaf = it->path().filename().string();
        if (!includeHidden && !leaf.empty() && leaf[0] == '.') continue;
        all_.push_back(itemOf(*it));
    }
    keys_.clear();
    keys_.reserve(all_.size());
    for (const FBItem& item : all_) keys_.push_back(FileFilter::folded(item.name));
    rebuild();
    return readable_;
}

void FolderListing::setFilter(const FileFilter& filter, bool foldersOnly) {
    filter_ = filter;
    foldersOnly_ = foldersOnly;
    rebuild();
}

void FolderListing::sortBy(eSortKey key, bool ascending) {
    key_ = key;
    ascending_ = ascending;
    rebuild();
}

const FBItem* FolderListing::item(int index) const { return index >= 0 && index < numShown() ? &shown_[static_cast<std::size_t>(index)] : nullptr; }

int FolderListing::indexOf(const LightweightString<char>& nativePath) const {
    for (int i = 0; i < numShown(); ++i)
        if (shown_[static_cast<std::size_t>(i)].nativePath == nativePath) return i;
    return -1;
}

void FolderListing::rebuild() {
    std::vector<std::size_t> order;
    order.reserve(all_.size());
    for (std::size_t i = 0; i < all_.size(); ++i) {
        const FBItem& item = all_[i];
        if (item.isFolder || (!foldersOnly_ && filter_.matches(item.name))) order.push_back(i);
    }
    auto byName = [&](std::size_t a, std::size_t b) {
        if (keys_[a] != keys_[b]) return keys_[a] < keys_[b];
        return all_[a].nativePath < all_[b].nativePath;
    };
    auto before = [&](std::size_t a, std::size_t b) {
        const FBItem &x = all_[a], &y = all_[b];
        if (x.isFolder != y.isFolder) return x.isFolder;
        if (key_ == kBySize && x.size != y.size) return ascending_ ? x.size < y.size : x.size > y.size;
        if (key_ == kByDate && x.modified != y.modified) return ascending_ ? x.modified < y.modified : x.modified > y.modified;
        // Equal sizes and dates fall back to the name, which is always ascending then.
        return (key_ == kByName && !ascending_) ? byName(b, a) : byName(a, b);
    };
    std::sort(order.begin(), order.end(), before);
    std::vector<FBItem> shown;
    shown.reserve(order.size());
    for (std::size_t i : order) shown.push_back(all_[i]);
    shown_ = LightweightVector<FBItem>();
    shown_.vec() = std::move(shown);
}
