list(APPEND GALLERY_SOURCES EditorScene.cpp)
