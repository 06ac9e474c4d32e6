list(APPEND GALLERY_SOURCES ListsScene.cpp)
