#pragma once

#include "FileFormatButton.h"
#include "controls/TitleGlob.h"

/// The record of a TitledFileFormatButton: the use, the preference key and the
/// button's width, under the title "File type".
struct TitledFileFormatButtonInitArgs : TitleGlob::InitArgs {
    Compression::eUsage usage = Compression::eExport;
    LightweightString<char> preferenceKey;
    unsigned short buttonWidth = 0;
    TitledFileFormatButtonInitArgs() = default;
    TitledFileFormatButtonInitArgs(Compression::eUsage usage, const LightweightString<char>& preferenceKey, unsigned short buttonWidth,
                                   unsigned short width, unsigned short height);
};

/// A FileFormatButton at the right of a row, with its title at the left. The
/// button's FileTypeChangedMsg goes on to this row's owner, with the button as sender.
class TitledFileFormatButton : public TitleGlob {
public:
    using InitArgs = TitledFileFormatButtonInitArgs;
    static constexpr ResId kTitle = 612;

    explicit TitledFileFormatButton(const InitArgs& args);
    TitledFileFormatButton(Compression::eUsage usage, const LightweightString<char>& preferenceKey, unsigned short width, unsigned short height,
                           const Palette& palette, Canvas* canvas);
    const char* idstring() const override { return "TitledFileFormatButton"; }

    void init(Compression::eUsage usage, LightweightString<char> preferenceKey, unsigned short buttonWidth);
    FileFormatButton* getButton() const { return button_; }

private:
    FileFormatButton* button_ = nullptr;
};
