#include "GalleryScene.h"

std::vector<GalleryScene>& GalleryScene::all() {
    static std::vector<GalleryScene> scenes;
    return scenes;
}
