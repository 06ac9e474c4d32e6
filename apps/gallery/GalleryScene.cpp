#include "GalleryScene.h"

#include "glob/GlobManager.h"

std::vector<GalleryScene>& GalleryScene::all() {
    static std::vector<GalleryScene> scenes;
    return scenes;
}

void GalleryScene::clearScreen() {
    GlobManager& gm = GlobManager::instance();
    gm.runUntilIdle();
    auto roots = gm.roots();
    for (Glob* g : roots)
        if (is_good_glob_ptr(g)) delete g;
    gm.runUntilIdle();
}

int GalleryScene::countControls() {
    int n = 0;
    for (Glob* root : GlobManager::instance().roots())
        root->visitSubtree([&](Glob* g) {
            n += g != root;
            return true;
        });
    return n;
}
