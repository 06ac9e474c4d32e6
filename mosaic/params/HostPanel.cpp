#include "HostPanel.h"

#include "draw/UifStd.h"
#include "glob/makeTopLevel.h"

#include <algorithm>

HostPanel::HostPanel(const InitArgs& args) : StandardPanel(args) {
    setBorder(getDefaultBorder());
    addStandardWidgets(kCloseBox | kTitleBar);
    setTitle(UIString(L"Output"), UifStd::instance().getTitleFont(), kNoRedraw);
    params_ = args.description ? UIBuilder::buildFromJSON(args.description, this) : UIBuilder::build(args.params, this);
}

HostPanel* HostPanel::make(const InitArgs& args) {
    return makeTopLevel<HostPanel>(args, args.position.origin == kNoPosition ? Glob::Centre(0, 0) : args.position);
}

void HostPanel::fitToRows() {
    const BoxInt user = getUserArea();
    int lowest = user.y1;
    for (Glob* child : getChildren())
        if (child->isVisible()) lowest = std::min(lowest, child->getY());
    if (lowest < user.y1) resize(width(), height() + (user.y1 - lowest) + UifStd::instance().getRowGap());
}
