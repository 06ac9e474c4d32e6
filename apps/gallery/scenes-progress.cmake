list(APPEND GALLERY_SOURCES ProgressScene.cpp)
