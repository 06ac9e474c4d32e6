#pragma once

#include "Drawable.h"
#include "GlobManager.h"
#include "WidgetPosition.h"
#include "draw/StateSaver.h"
#include "draw/UifStd.h"

// Makes a top-level glob of type T from `args` in the scheme's colours and shows
// it at `where`, placed by its own size and kept on the screen. Nothing is painted
// until it is whole, and the canvas that was current before is current after.
template <class T, class Args>
T* makeTopLevel(Args args, const WidgetPosition& where) {
    args.canvas = nullptr;
    args.isChild = false;
    args.palette = UifStd::instance().getColourScheme();
    Drawable::disableRedraws();
    T* glob = nullptr;
    {
        Glib::StateSaver saver;
        glob = new T(args);
        GlobManager::instance().show(glob, where);
    }
    Drawable::enableRedraws();
    return glob;
}
