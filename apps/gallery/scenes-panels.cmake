list(APPEND GALLERY_SOURCES PanelsScene.cpp)
