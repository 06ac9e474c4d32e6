#pragma once

#include "GalleryScene.h"

#include "glob/Glob.h"
#include "glob/GlobManager.h"
#include "testkit/TestKit.h"

#include <gtest/gtest.h>

#include <string>

// Builds one gallery scene on the headless screen for a test and clears it after.
class GalleryTest : public ::testing::Test {
protected:
    void TearDown() override { TestKit::reset(); }

    static bool build(const std::string& name) {
        for (const GalleryScene& scene : GalleryScene::all())
            if (scene.name.str() == name) {
                scene.build();
                TestKit::pump();
                return true;
            }
        return false;
    }
};
