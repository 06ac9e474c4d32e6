#pragma once

#include "controls/StandardPanel.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"

// A plain panel in the house colours at (100, 100) for a benchmark's widgets,
// realized unless asked not to be.
inline StandardPanel* makeBenchHost(int w, int h, bool realize = true) {
    StandardPanel::InitArgs args(static_cast<unsigned short>(w), static_cast<unsigned short>(h));
    args.palette = UifStd::instance().getColourScheme();
    auto* p = new StandardPanel(args);
    p->setupRootPos({100, 100});
    if (realize) GlobManager::instance().realize(p);
    return p;
}
