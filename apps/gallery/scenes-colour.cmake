list(APPEND GALLERY_SOURCES ColourScene.cpp)
