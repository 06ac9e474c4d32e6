list(APPEND GALLERY_SOURCES
  ControlsScene.cpp
  DemoScene.cpp
  EditorScene.cpp
  FilesScene.cpp
  GalleryProbe.cpp
  GalleryScene.cpp
  GradeScene.cpp
  ListsScene.cpp
  LoggerScene.cpp
  MenusScene.cpp
  PanelsScene.cpp
  ParamsScene.cpp
  ProgressScene.cpp
  SampleTaskLog.cpp
  TextScene.cpp
  TutorialsScene.cpp
)
