list(APPEND GALLERY_SOURCES ControlsScene.cpp)
