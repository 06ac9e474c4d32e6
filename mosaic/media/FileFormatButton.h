#pragma once

#include "controls/DropDownMenuButton.h"
#include "media/Compression.h"

/// A drop-down of the file types the exporter can write for a use, each shown by
/// its extension ("MOV"). The user's choice is remembered as the extension's text
/// under a preference key of the owner's naming, and read back in any letter case;
/// an empty key remembers nothing. After a choice the button sends
/// FileTypeChangedMsg to its parent, at once.
class FileFormatButton : public DropDownMenuButton {
public:
    /// What a FileFormatButton is made from: a drop-down's record, the use of its file types and the key the choice is kept under.
    struct InitArgs : DropDownMenuButton::InitArgs {
        Compression::eUsage usage = Compression::eExport;
        LightweightString<char> preferenceKey;
        InitArgs() = default;
        InitArgs(Compression::eUsage usage, const LightweightString<char>& preferenceKey, unsigned short width = 0, unsigned short height = 0);
    };

    static constexpr const char* FileTypeChangedMsg = "FileTypeChangedMsg";
    // The file type chosen when nothing is stored.
    static constexpr const wchar_t* kDefaultFileType = L"AVI";

    explicit FileFormatButton(const InitArgs& args);
    FileFormatButton(Compression::eUsage usage, const LightweightString<char>& preferenceKey, const Palette& palette, double width, double height,
                     Canvas* canvas);
    const char* idstring() const override { return "FileFormatButton"; }

    // Offers the file types of `usage` and selects the stored one, or the first.
    void init(Compression::eUsage usage);
    // The identifier of the selected file type, as FileWriterInfo gives it.
    LightweightString<char> getFileType();
    const LightweightString<char>& getPreferenceKey() const { return preferenceKey_; }
    // Runs when the user has chosen a row: stores the choice and tells the parent.
    virtual void informOwner();

protected:
    void handleChoice(int choice) override;

private:
    LightweightString<char> preferenceKey_;
};
