# Editing dialogs, panels and the edit controller: the text dialog, the move
# and array dialogs, the alignment buttons, and the tools and edit actions of
# the design canvas.
target_sources(lumitra_jiemian PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/jk_wen_zi2.cpp ${CMAKE_CURRENT_LIST_DIR}/jk_wen_zi2.h
  ${CMAKE_CURRENT_LIST_DIR}/jk_wen_zi2.ui
  ${CMAKE_CURRENT_LIST_DIR}/move_dialog.cpp ${CMAKE_CURRENT_LIST_DIR}/move_dialog.h
  ${CMAKE_CURRENT_LIST_DIR}/move_dialog.ui
  ${CMAKE_CURRENT_LIST_DIR}/array_dialog.cpp ${CMAKE_CURRENT_LIST_DIR}/array_dialog.h
  ${CMAKE_CURRENT_LIST_DIR}/array_dialog.ui
  ${CMAKE_CURRENT_LIST_DIR}/align_panel.cpp ${CMAKE_CURRENT_LIST_DIR}/align_panel.h
  ${CMAKE_CURRENT_LIST_DIR}/align_panel.ui
  ${CMAKE_CURRENT_LIST_DIR}/edit_controller.cpp ${CMAKE_CURRENT_LIST_DIR}/edit_controller.h
  ${CMAKE_CURRENT_LIST_DIR}/rotation_field.cpp ${CMAKE_CURRENT_LIST_DIR}/rotation_field.h)
# Offset and boolean operations of the selection, with the offset dialog.
target_sources(lumitra_jiemian PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/offset_dialog.cpp ${CMAKE_CURRENT_LIST_DIR}/offset_dialog.h
  ${CMAKE_CURRENT_LIST_DIR}/offset_dialog.ui
  ${CMAKE_CURRENT_LIST_DIR}/geometry_actions.cpp ${CMAKE_CURRENT_LIST_DIR}/geometry_actions.h)
target_include_directories(lumitra_jiemian PUBLIC ${CMAKE_CURRENT_LIST_DIR})
