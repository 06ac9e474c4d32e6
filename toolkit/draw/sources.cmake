list(APPEND GLOBKIT_SOURCES
  draw/Canvas.cpp
  draw/CanvasRenderer.cpp
  draw/drawDepthBox.cpp
  draw/drawRoundedRectOutline.cpp
  draw/FontDesc.cpp
  draw/Screen.cpp
  draw/StateSaver.cpp
  draw/ShapeMaskCache.cpp
  draw/ShapedTextCache.cpp
  draw/TextAdvanceCache.cpp
  draw/TextLayout.cpp
  draw/WordWrappingTextRenderer.cpp
  draw/HTMLParser.cpp
  draw/HTMLRenderer.cpp
  draw/HTMLLayout.cpp
  draw/HTMLUtils.cpp
)
