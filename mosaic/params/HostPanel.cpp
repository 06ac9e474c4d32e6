#include "HostPanel.h"

#include "glob/UifStd.h"
#include "glob/makeTopLevel.h"

HostPanel::HostPanel(const InitArgs& args) : StandardPanel(args) {
    setBorder(getDefaultBorder());
    addStandardWidgets(kCloseBox | kTitleBar);
    setTitle(UIString(L"Output"), UifStd::instance().getTitleFont(), kNoRedraw);
    params_ = args.description ? UIBuilder::buildFromJSON(args.description, this) : UIBuilder::build(args.params, this);
}

HostPanel* HostPanel::make(const InitArgs& args) {
    return makeTopLevel<HostPanel>(args, args.position.origin == kNoPosition ? Glob::Centre(0, 0) : args.position);
}
