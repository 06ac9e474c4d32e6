#pragma once

#include "core/LightweightString.h"

#include <functional>
#include <vector>

class Glob;

// One scene of the gallery: builds and realizes its top-level globs on the screen.
// Scenes register themselves at load, beside their code.
struct GalleryScene {
    LightweightString<char> name;
    LightweightString<char> description;
    std::function<void()> build;

    static std::vector<GalleryScene>& all();
};

struct GallerySceneRegistration {
    GallerySceneRegistration(const char* name, const char* description, std::function<void()> build) {
        GalleryScene::all().push_back({name, description, std::move(build)});
    }
};
