list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/draw/CanvasTest.cpp
  toolkit/draw/PanelPaintingTest.cpp
  toolkit/draw/TextTest.cpp
)
