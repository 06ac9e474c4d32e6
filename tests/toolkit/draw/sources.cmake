list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/draw/CanvasTest.cpp
  toolkit/draw/DrawHelpersTest.cpp
  toolkit/draw/HTMLParseTest.cpp
  toolkit/draw/HTMLRendererTest.cpp
  toolkit/draw/HTMLUtilsTest.cpp
  toolkit/draw/PaintCacheTest.cpp
  toolkit/draw/PanelPaintingTest.cpp
  toolkit/draw/TextAdvanceCacheTest.cpp
  toolkit/draw/TextLayoutTest.cpp
  toolkit/draw/TextStyleTest.cpp
  toolkit/draw/TextTest.cpp
  toolkit/draw/VideoWindowTest.cpp
  toolkit/draw/WordWrappingTextRendererTest.cpp
)
