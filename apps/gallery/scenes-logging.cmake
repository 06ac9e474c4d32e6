list(APPEND GALLERY_SOURCES LoggerScene.cpp)
