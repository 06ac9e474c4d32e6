list(APPEND MOSAIC_SOURCES
  entry/CustomTextBox.cpp
  entry/datecanvas.cpp
  entry/IPAddressEntryBox.cpp
  entry/LoginPanel.cpp
  entry/moveFocusAmong.cpp
  entry/PasswordEntryBox.cpp
  entry/SignInWidget.cpp
  entry/YearSet.cpp
)
