#include "FileFormatButton.h"

#include "core/Utf8.h"
#include "glob/Messaging.h"
#include "media/FileWriterInfo.h"
#include "media/ZnExport.h"
#include "platform/EditorPreferences.h"

#include <cwchar>

FileFormatButton::InitArgs::InitArgs(Compression::eUsage u, const LightweightString<char>& key, unsigned short width, unsigned short height)
    : usage(u), preferenceKey(key) {
    this->width = width;
    this->height = height;
}

namespace {
FileFormatButton::InitArgs argsOf(Compression::eUsage usage, const LightweightString<char>& key, const Palette& palette, double width, double height,
                                  Canvas* canvas) {
    FileFormatButton::InitArgs a(usage, key, static_cast<unsigned short>(width), static_cast<unsigned short>(height));
    a.palette = palette;
    a.canvas = canvas;
    a.isChild = canvas != nullptr;
    return a;
}
} // namespace

FileFormatButton::FileFormatButton(const InitArgs& args) : DropDownMenuButton(args), preferenceKey_(args.preferenceKey) {
    // The owner hears of a choice by FileTypeChangedMsg alone.
    setCallback(WidgetCallback());
    init(args.usage);
}

FileFormatButton::FileFormatButton(Compression::eUsage usage, const LightweightString<char>& key, const Palette& palette, double width, double height,
                                   Canvas* canvas)
    : FileFormatButton(argsOf(usage, key, palette, width, height, canvas)) {}

void FileFormatButton::init(Compression::eUsage usage) {
    const LightweightString<wchar_t> stored = preferenceKey_.empty()
                                                  ? LightweightString<wchar_t>(kDefaultFileType)
                                                  : prefs().getPreference(preferenceKey_, LightweightString<wchar_t>(kDefaultFileType));
    std::vector<MenuItem> rows;
    unsigned short selected = 0;
    for (const LightweightString<char>& id : Zn::FileWriterInfo::getSupportedFormatTypes(usage)) {
        const LightweightString<wchar_t> text = ZnExport::getExtensionForFormatID(id);
        if (!text.empty() && !stored.empty() && wcscasecmp(text.c_str(), stored.c_str()) == 0) selected = static_cast<unsigned short>(rows.size());
        rows.emplace_back(UIString(text), WidgetCallback(), getPalette().text(kTextNormal), getCol());
    }
    setStrings(rows, MenuItemIndex(selected));
}

LightweightString<char> FileFormatButton::getFileType() { return ZnExport::getFormatIDForExtension(getSelectedItemNameW()); }

void FileFormatButton::handleChoice(int choice) {
    const GlobHandle<FileFormatButton> me(this);
    DropDownMenuButton::handleChoice(choice);
    if (me) informOwner();
}

void FileFormatButton::informOwner() {
    if (!preferenceKey_.empty()) prefs().setPreference(preferenceKey_, getSelectedItemNameW());
    if (Glob* owner = parent()) sendMessage(FileTypeChangedMsg, owner, this);
}
