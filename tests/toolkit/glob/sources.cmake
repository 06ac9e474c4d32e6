list(APPEND GLOBKIT_TEST_SOURCES
  toolkit/glob/CanvasStackTest.cpp
  toolkit/glob/GlobLayoutTest.cpp
  toolkit/glob/GlobLifetimeTest.cpp
  toolkit/glob/GlobOperationsTest.cpp
  toolkit/glob/InputTest.cpp
  toolkit/glob/MessagingTest.cpp
  toolkit/glob/ProgressSupportTest.cpp
  toolkit/glob/RedrawTest.cpp
  toolkit/glob/ScreenGrabTest.cpp
)
