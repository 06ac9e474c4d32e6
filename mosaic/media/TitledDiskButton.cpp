#include "TitledDiskButton.h"

#include "draw/StateSaver.h"
#include "draw/UifStd.h"

TitledDiskButton::TitledDiskButton(const InitArgs& args) : TitleGlob(args) { init(0); }

void TitledDiskButton::init(unsigned short width) {
    Glib::StateSaver saver;
    const UifStd& u = UifStd::instance();
    DiskButton::InitArgs args(width != 0 ? width : DiskButton::calcWidth(), static_cast<unsigned short>(u.getRowHeight() - 2 * u.getIndentWidth()));
    args.canvas = canvas();
    args.palette = getPalette();
    args.isChild = true;
    button_ = new DiskButton(args);
    addChild(button_, RightCentre(0, 0));
    button_->setStyle(2);
}
