#pragma once

#include "core/LightweightString.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <vector>

namespace iFileManager {
/// One entry of a folder: its name, whether it is a folder, its size and its time of change.
struct DirectoryItem {
    LightweightString<wchar_t> name;
    bool isFolder = false;
    std::uint64_t size = 0;
    std::int64_t modified = 0; // seconds since the epoch
};
} // namespace iFileManager

/// The operating layer: counting, folders, files, the shell and the clipboard.
class OSServices {
public:
    int atomicIncrement(std::atomic<int>& n) { return ++n; }
    int atomicDecrement(std::atomic<int>& n) { return --n; }

    // The user's home folder, and the application's data folder: $MOSAIC_HOME, else
    // $XDG_DATA_HOME/mosaic, else ~/.local/share/mosaic.
    LightweightString<wchar_t> getUserFolder() const;
    LightweightString<wchar_t> getApplicationDataFolder() const;

    // The entries of a folder whose names match a pattern with * and ?, sorted by
    // name; `pattern` may also be given as the last part of `path` ("dir/*.txt").
    // A missing folder lists nothing.
    std::vector<iFileManager::DirectoryItem> listFolder(const LightweightString<wchar_t>& path, const LightweightString<wchar_t>& pattern = L"*",
                                                        bool includeFolders = true) const;
    bool deleteFile(const LightweightString<wchar_t>& path) const;
    // Makes the folder and any missing parents; true when it exists afterwards.
    bool makeFolder(const LightweightString<wchar_t>& path) const;

    // Starts a helper program with arguments, detached; false when it could not be
    // started. Tests install one that records instead of launching.
    using Launcher = std::function<bool(const LightweightString<char>& program, const std::vector<LightweightString<char>>& args)>;
    // An empty launcher puts back the one that really starts programs.
    void setLauncher(Launcher launcher);

    // Opens a file, or a web address (with a scheme, or starting "www."), with the
    // desktop's default application, or shows a file in the file manager. False
    // when the file does not exist or the helper could not be started.
    bool openWithDefaultApplication(const LightweightString<wchar_t>& path) const;
    bool revealInFileManager(const LightweightString<wchar_t>& path) const;
    // Shows each folder that holds one of the files once, in order of first mention;
    // files that do not exist are passed over. True when at least one was shown.
    bool revealInFileManager(const std::vector<LightweightString<wchar_t>>& paths) const;

    // The clipboard: in this process unless a window backend installs the system's.
    void setClipboardText(const LightweightString<wchar_t>& text);
    LightweightString<wchar_t> getClipboardText() const;
    void installClipboard(std::function<void(const LightweightString<wchar_t>&)> set, std::function<LightweightString<wchar_t>()> get);

private:
    bool launch(const char* program, const LightweightString<wchar_t>& arg) const;

    Launcher launcher_;
    LightweightString<wchar_t> clipboard_;
    std::function<void(const LightweightString<wchar_t>&)> setClip_;
    std::function<LightweightString<wchar_t>()> getClip_;
};

OSServices* OS();
// True when `name` matches `pattern` with * (any run) and ? (one character).
bool matchesPattern(const LightweightString<wchar_t>& name, const LightweightString<wchar_t>& pattern);
