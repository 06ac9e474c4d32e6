#pragma once

#include "controls/StandardPanel.h"
#include "core/LightweightString.h"
#include "draw/UifStd.h"

#include <functional>
#include <vector>

// One scene of the gallery: builds and realizes its top-level globs on the screen.
// Scenes register themselves at load, beside their code.
struct GalleryScene {
    LightweightString<char> name;
    LightweightString<char> description;
    std::function<void()> build;

    static std::vector<GalleryScene>& all();

    // Deletes every top-level glob, so that the next scene starts on an empty screen.
    static void clearScreen();
    // The globs on the screen below the top-level ones.
    static int countControls();

    // A scene's top-level panel: the scheme's colours, the default border, a title
    // bar with `furniture`, its bottom left at `at`; not yet realized.
    template <class P = StandardPanel>
    static P* makePanel(int w, int h, const wchar_t* title, XY<int> at, int furniture = StandardPanel::kCloseBox | StandardPanel::kTitleBar) {
        StandardPanel::InitArgs args(static_cast<unsigned short>(w), static_cast<unsigned short>(h));
        args.palette = UifStd::instance().getColourScheme();
        auto* p = new P(args);
        p->setBorder(StandardPanel::getDefaultBorder());
        p->setTitle(UIString(title));
        p->addStandardWidgets(furniture);
        p->setupRootPos(at);
        return p;
    }
};

struct GallerySceneRegistration {
    GallerySceneRegistration(const char* name, const char* description, std::function<void()> build) {
        GalleryScene::all().push_back({name, description, std::move(build)});
    }
};
