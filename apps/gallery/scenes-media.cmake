list(APPEND GALLERY_SOURCES MediaScene.cpp)
