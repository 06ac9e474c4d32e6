#include "OS.h"

#include "Paths.h"
#include "core/Utf8.h"

#include <algorithm>
#include <cstdlib>
#include <cwctype>
#include <filesystem>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>

extern char** environ;

namespace fs = std::filesystem;

namespace {

LightweightString<wchar_t> envFolder(const char* var, const char* homeRelative) {
    if (const char* v = std::getenv(var); v && *v) return fromUTF8(v);
    const char* home = std::getenv("HOME");
    return fromUTF8(LightweightString<char>(home && *home ? home : "/tmp") + homeRelative);
}

bool spawnDetached(const char* program, const LightweightString<char>& arg) {
    pid_t pid = 0;
    char* argv[] = {const_cast<char*>(program), const_cast<char*>(arg.c_str()), nullptr};
    if (posix_spawnp(&pid, program, nullptr, nullptr, argv, environ) != 0) return false;
    // Reaped by a thread of its own so that no zombie is left and the caller never waits.
    std::thread([pid] { waitpid(pid, nullptr, 0); }).detach();
    return true;
}

// An address with a scheme ("https://...", "mailto:...") or a bare "www." one.
bool isWebAddress(const LightweightString<wchar_t>& text) {
    std::wstring_view v = text.view();
    if (v.size() > 4 && (v.substr(0, 4) == L"www." || v.substr(0, 4) == L"WWW.")) return true;
    std::size_t colon = v.find(L':');
    if (colon == std::wstring_view::npos || colon < 2) return false; // "C:" is a drive, not a scheme
    for (std::size_t i = 0; i < colon; ++i)
        if (!std::iswalnum(v[i]) && v[i] != L'+' && v[i] != L'-' && v[i] != L'.') return false;
    return colon + 1 < v.size();
}

} // namespace

OSServices* OS() {
    static OSServices os;
    return &os;
}

bool matchesPattern(const LightweightString<wchar_t>& name, const LightweightString<wchar_t>& pattern) {
    std::size_t n = 0, p = 0, star = LightweightString<wchar_t>::npos, mark = 0;
    while (n < name.size()) {
        if (p < pattern.size() && (pattern[p] == L'?' || pattern[p] == name[n])) {
            ++n, ++p;
        } else if (p < pattern.size() && pattern[p] == L'*') {
            star = p++;
            mark = n;
        } else if (star != LightweightString<wchar_t>::npos) {
            p = star + 1;
            n = ++mark;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == L'*') ++p;
    return p == pattern.size();
}

LightweightString<wchar_t> OSServices::getUserFolder() const { return envFolder("HOME", ""); }

LightweightString<wchar_t> OSServices::getApplicationDataFolder() const {
    if (const char* home = std::getenv("MOSAIC_HOME"); home && *home) return fromUTF8(home);
    if (const char* xdg = std::getenv("XDG_DATA_HOME"); xdg && *xdg) return joinPaths(fromUTF8(xdg), L"mosaic");
    return envFolder("MOSAIC_NO_SUCH_VARIABLE", "/.local/share/mosaic");
}

std::vector<iFileManager::DirectoryItem> OSServices::listFolder(const LightweightString<wchar_t>& path, const LightweightString<wchar_t>& pattern,
                                                                bool includeFolders) const {
    LightweightString<wchar_t> folder = path, filter = pattern.empty() ? LightweightString<wchar_t>(L"*") : pattern;
    LightweightString<wchar_t> last = stripPath(path);
    if (last.find(L'*') != LightweightString<wchar_t>::npos || last.find(L'?') != LightweightString<wchar_t>::npos) {
        folder = getPath(path);
        filter = last;
    }
    std::vector<iFileManager::DirectoryItem> items;
    std::error_code ec;
    for (fs::directory_iterator it(toUTF8(folder).c_str(), ec), end; !ec && it != end; it.increment(ec)) {
        iFileManager::DirectoryItem item;
        item.name = fromUTF8(it->path().filename().string().c_str());
        if (!matchesPattern(item.name, filter)) continue;
        item.isFolder = it->is_directory(ec);
        if (item.isFolder && !includeFolders) continue;
        item.size = item.isFolder ? 0 : it->file_size(ec);
        auto time = it->last_write_time(ec);
        item.modified = std::chrono::duration_cast<std::chrono::seconds>(time.time_since_epoch()).count();
        items.push_back(item);
    }
    std::sort(items.begin(), items.end(), [](const auto& a, const auto& b) { return a.name < b.name; });
    return items;
}

bool OSServices::deleteFile(const LightweightString<wchar_t>& path) const {
    std::error_code ec;
    return !path.empty() && fs::is_regular_file(toUTF8(path).c_str(), ec) && fs::remove(toUTF8(path).c_str(), ec);
}

bool OSServices::makeFolder(const LightweightString<wchar_t>& path) const {
    if (path.empty()) return false;
    std::error_code ec;
    fs::create_directories(toUTF8(path).c_str(), ec);
    return fs::is_directory(toUTF8(path).c_str(), ec);
}

void OSServices::setLauncher(Launcher launcher) { launcher_ = std::move(launcher); }

bool OSServices::launch(const char* program, const LightweightString<wchar_t>& arg) const {
    if (launcher_) return launcher_(program, {toUTF8(arg)});
    return spawnDetached(program, toUTF8(arg));
}

bool OSServices::openWithDefaultApplication(const LightweightString<wchar_t>& path) const {
    return (isWebAddress(path) || fileExists(path)) && launch("xdg-open", path);
}

bool OSServices::revealInFileManager(const LightweightString<wchar_t>& path) const {
    if (!fileExists(path)) return false;
    LightweightString<wchar_t> folder = getPath(path);
    return launch("xdg-open", folder.empty() ? LightweightString<wchar_t>(L".") : folder);
}

bool OSServices::revealInFileManager(const std::vector<LightweightString<wchar_t>>& paths) const {
    std::vector<LightweightString<wchar_t>> folders;
    bool shown = false;
    for (const auto& path : paths) {
        if (!fileExists(path)) continue;
        LightweightString<wchar_t> folder = getPath(path);
        if (std::find(folders.begin(), folders.end(), folder) != folders.end()) continue;
        folders.push_back(folder);
        shown = revealInFileManager(path) || shown;
    }
    return shown;
}

void OSServices::setClipboardText(const LightweightString<wchar_t>& text) {
    if (setClip_)
        setClip_(text);
    else
        clipboard_ = text;
}

LightweightString<wchar_t> OSServices::getClipboardText() const { return getClip_ ? getClip_() : clipboard_; }

void OSServices::installClipboard(std::function<void(const LightweightString<wchar_t>&)> set, std::function<LightweightString<wchar_t>()> get) {
    setClip_ = std::move(set);
    getClip_ = std::move(get);
}
