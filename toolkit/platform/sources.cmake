list(APPEND GLOBKIT_SOURCES
  platform/Clock.cpp
  platform/CommandRegistrar.cpp
  platform/ConfigbFile.cpp
  platform/Configuration.cpp
  platform/Cookie.cpp
  platform/CookieJar.cpp
  platform/EditorPreferences.cpp
  platform/JSON.cpp
  platform/JSONBuilder.cpp
  platform/JSONElement.cpp
  platform/OS.cpp
  platform/Paths.cpp
  platform/ResourceStrings.cpp
  platform/TextFile.cpp
  platform/configb.cpp
)
