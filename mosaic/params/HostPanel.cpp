#include "HostPanel.h"

#include "draw/StateSaver.h"
#include "glob/GlobManager.h"
#include "glob/UifStd.h"

HostPanel::HostPanel(const InitArgs& args) : StandardPanel(args) {
    setBorder(getDefaultBorder());
    addStandardWidgets(kCloseBox | kMoveByTitle);
    setTitle(UIString(L"Output"), UifStd::instance().getTitleFont(), kNoRedraw);
    params_ = args.description ? UIBuilder::buildFromJSON(args.description, this) : UIBuilder::build(args.params, this);
}

HostPanel* HostPanel::make(const InitArgs& args) {
    InitArgs a(args);
    a.canvas = nullptr;
    a.isChild = false;
    a.palette = UifStd::instance().getColourScheme();
    Drawable::disableRedraws();
    Glib::StateSaver saver;
    GlobManager& gm = GlobManager::instance();
    const WidgetPosition where = a.position.origin == kNoPosition ? Glob::Centre(0, 0) : a.position;
    const XY<int> size(a.width, a.height);
    auto* host = new HostPanel(a);
    host->setupRootPos(gm.getSafePosForGlob(nullptr, gm.getPosForGlob(a, where), size));
    gm.realize(host);
    Drawable::enableRedraws();
    return host;
}
