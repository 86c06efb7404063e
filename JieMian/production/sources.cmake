# Production tools: the parameter library dialog, the material test card
# dialog and the controller that applies and generates through the pages.
target_sources(lumitra_jiemian PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/parameter_library_dialog.cpp
  ${CMAKE_CURRENT_LIST_DIR}/parameter_library_dialog.h
  ${CMAKE_CURRENT_LIST_DIR}/parameter_library_dialog.ui
  ${CMAKE_CURRENT_LIST_DIR}/test_card_dialog.cpp ${CMAKE_CURRENT_LIST_DIR}/test_card_dialog.h
  ${CMAKE_CURRENT_LIST_DIR}/test_card_dialog.ui
  ${CMAKE_CURRENT_LIST_DIR}/production_controller.cpp
  ${CMAKE_CURRENT_LIST_DIR}/production_controller.h)
target_include_directories(lumitra_jiemian PUBLIC ${CMAKE_CURRENT_LIST_DIR})
