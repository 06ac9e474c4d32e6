#pragma once

#include "core/Palette.h"
#include "core/XY.h"
#include "core/iVirtual.h"
#include "platform/configb.h"

class Canvas;

/// The creation record every widget's InitArgs derives from. Children get their
/// canvas and palette from the parent; a width of 0 means as wide as the parent's
/// user area. For globs made by type name, `type`, `position` and `settings` say
/// which kind, where, and with what.
class GlobCreationInfo : public iVirtual {
public:
    GlobCreationInfo() = default;
    GlobCreationInfo(unsigned short w, unsigned short h) : width(w), height(h) {}
    GlobCreationInfo(unsigned short w, unsigned short h, const Palette& p, bool child, Canvas* c)
        : canvas(c), isChild(child), palette(p), width(w), height(h) {}
    // A copy with a new size; 0 keeps the size of the source.
    GlobCreationInfo(const GlobCreationInfo& src, unsigned short w, unsigned short h) : GlobCreationInfo(src) {
        if (w) width = w;
        if (h) height = h;
    }
    GlobCreationInfo(const GlobCreationInfo&) = default;
    GlobCreationInfo& operator=(const GlobCreationInfo&) = default;

    Canvas* canvas = nullptr;
    bool isChild = false;
    Palette palette;
    // Cleared by whoever copies the record for GlobManager::createGlob.
    void* reserved1 = nullptr;
    int reserved2 = 0;
    int width = 0;
    int height = 0;
    int style = 0;

    LightweightString<char> type;
    XY<int> position;
    configb settings;
};
