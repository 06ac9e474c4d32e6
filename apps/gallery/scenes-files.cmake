list(APPEND GALLERY_SOURCES FilesScene.cpp)
