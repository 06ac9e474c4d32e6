list(APPEND GLOBKIT_SOURCES
  controls/FBItem.cpp
  controls/FileFilter.cpp
  controls/FolderListing.cpp
  controls/FileBrowserBase.cpp
  controls/FileBrowser.cpp
)
