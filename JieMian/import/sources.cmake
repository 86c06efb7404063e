# Import: the mode preview dialog and the window's actions on a selected bitmap.
target_sources(lumitra_jiemian PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/moshiyulan.cpp ${CMAKE_CURRENT_LIST_DIR}/moshiyulan.h
  ${CMAKE_CURRENT_LIST_DIR}/moshiyulan.ui
  ${CMAKE_CURRENT_LIST_DIR}/import_actions.cpp ${CMAKE_CURRENT_LIST_DIR}/import_actions.h)
target_include_directories(lumitra_jiemian PUBLIC ${CMAKE_CURRENT_LIST_DIR})
target_link_libraries(lumitra_jiemian PUBLIC lumitra_import)
# QR codes and barcodes: the dialog and the window's action.
target_sources(lumitra_jiemian PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/barcode_dialog.cpp ${CMAKE_CURRENT_LIST_DIR}/barcode_dialog.h
  ${CMAKE_CURRENT_LIST_DIR}/barcode_dialog.ui
  ${CMAKE_CURRENT_LIST_DIR}/barcode_actions.cpp ${CMAKE_CURRENT_LIST_DIR}/barcode_actions.h)
