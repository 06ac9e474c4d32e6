list(APPEND GLOBKIT_SOURCES
  controls/ArrowGlyph.cpp
  controls/ScrollBar.cpp
  controls/ScrollList.cpp
  controls/TreeView.cpp
  controls/VerticalScrollingBase.cpp
  controls/TableColumnDescription.cpp
  controls/TableWidget.cpp
  controls/WStringEditor.cpp
)
