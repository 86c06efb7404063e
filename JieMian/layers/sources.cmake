# Layer palette, layer rows, the layer parameter panel and their controller.
target_sources(lumitra_jiemian PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/layer_palette_bar.cpp ${CMAKE_CURRENT_LIST_DIR}/layer_palette_bar.h
  ${CMAKE_CURRENT_LIST_DIR}/tu_ceng_item2.cpp ${CMAKE_CURRENT_LIST_DIR}/tu_ceng_item2.h
  ${CMAKE_CURRENT_LIST_DIR}/tu_ceng_item2.ui
  ${CMAKE_CURRENT_LIST_DIR}/layer_rows_panel.cpp ${CMAKE_CURRENT_LIST_DIR}/layer_rows_panel.h
  ${CMAKE_CURRENT_LIST_DIR}/layer_rows_panel.ui
  ${CMAKE_CURRENT_LIST_DIR}/tu_ceng_zhi.cpp ${CMAKE_CURRENT_LIST_DIR}/tu_ceng_zhi.h
  ${CMAKE_CURRENT_LIST_DIR}/tu_ceng_zhi.ui
  ${CMAKE_CURRENT_LIST_DIR}/layer_panel_controller.cpp
  ${CMAKE_CURRENT_LIST_DIR}/layer_panel_controller.h)
target_include_directories(lumitra_jiemian PUBLIC ${CMAKE_CURRENT_LIST_DIR})
