#include "TitledFileFormatButton.h"

#include "draw/StateSaver.h"
#include "draw/UifStd.h"

TitledFileFormatButtonInitArgs::TitledFileFormatButtonInitArgs(Compression::eUsage u, const LightweightString<char>& key, unsigned short bw,
                                                               unsigned short width, unsigned short height)
    : TitleGlob::InitArgs(UIString(TitledFileFormatButton::kTitle), width, height), usage(u), preferenceKey(key), buttonWidth(bw) {}

namespace {
TitledFileFormatButtonInitArgs argsOf(Compression::eUsage usage, const LightweightString<char>& key, unsigned short width, unsigned short height,
                                      const Palette& palette, Canvas* canvas) {
    TitledFileFormatButtonInitArgs a(usage, key, 0, width, height);
    a.palette = palette;
    a.canvas = canvas;
    a.isChild = canvas != nullptr;
    return a;
}
} // namespace

TitledFileFormatButton::TitledFileFormatButton(const InitArgs& args) : TitleGlob(args) { init(args.usage, args.preferenceKey, args.buttonWidth); }

TitledFileFormatButton::TitledFileFormatButton(Compression::eUsage usage, const LightweightString<char>& key, unsigned short width,
                                               unsigned short height, const Palette& palette, Canvas* canvas)
    : TitledFileFormatButton(argsOf(usage, key, width, height, palette, canvas)) {}

void TitledFileFormatButton::init(Compression::eUsage usage, LightweightString<char> preferenceKey, unsigned short buttonWidth) {
    Glib::StateSaver saver;
    const UifStd& u = UifStd::instance();
    FileFormatButton::InitArgs args(usage, preferenceKey, buttonWidth, static_cast<unsigned short>(u.getRowHeight() - 2 * u.getIndentWidth()));
    args.canvas = canvas();
    args.palette = getPalette();
    args.isChild = true;
    button_ = new FileFormatButton(args);
    if (buttonWidth == 0) button_->resize(DropDownMenuButton::calcWidth(button_->getItems(), button_->getFont()), button_->height());
    addChild(button_, RightCentre(0, 0));
    button_->setStyle(2);
}
