list(APPEND GALLERY_SOURCES MenusScene.cpp)
