list(APPEND MOSAIC_TEST_SOURCES
  mosaic/imaging/SmallWidgetsTest.cpp
  mosaic/imaging/TrackButtonTest.cpp
)
