list(APPEND GALLERY_SOURCES ParamsScene.cpp)
