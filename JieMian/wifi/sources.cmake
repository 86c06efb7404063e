# The controller's radio setup, the search for boards on the network and the
# SD card file manager.
target_sources(lumitra_jiemian PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/wifi_she_zhi.cpp ${CMAKE_CURRENT_LIST_DIR}/wifi_she_zhi.h
  ${CMAKE_CURRENT_LIST_DIR}/wifi_she_zhi.ui
  ${CMAKE_CURRENT_LIST_DIR}/controller_search_dialog.cpp
  ${CMAKE_CURRENT_LIST_DIR}/controller_search_dialog.h
  ${CMAKE_CURRENT_LIST_DIR}/controller_search_dialog.ui
  ${CMAKE_CURRENT_LIST_DIR}/sd_file_manager.cpp ${CMAKE_CURRENT_LIST_DIR}/sd_file_manager.h
  ${CMAKE_CURRENT_LIST_DIR}/sd_file_manager.ui
  ${CMAKE_CURRENT_LIST_DIR}/wifi_tools_controller.cpp
  ${CMAKE_CURRENT_LIST_DIR}/wifi_tools_controller.h)
target_include_directories(lumitra_jiemian PUBLIC ${CMAKE_CURRENT_LIST_DIR})
target_link_libraries(lumitra_jiemian PUBLIC lumitra_device)
