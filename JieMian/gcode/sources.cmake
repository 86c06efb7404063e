# G-code: the rotary dialog and the job actions (save G-code, the run file).
target_sources(lumitra_jiemian PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/gun_zhou.cpp ${CMAKE_CURRENT_LIST_DIR}/gun_zhou.h
  ${CMAKE_CURRENT_LIST_DIR}/gun_zhou.ui
  ${CMAKE_CURRENT_LIST_DIR}/gcode_job_controller.cpp
  ${CMAKE_CURRENT_LIST_DIR}/gcode_job_controller.h
  ${CMAKE_CURRENT_LIST_DIR}/job_preview_dialog.cpp ${CMAKE_CURRENT_LIST_DIR}/job_preview_dialog.h
  ${CMAKE_CURRENT_LIST_DIR}/job_preview_dialog.ui
  ${CMAKE_CURRENT_LIST_DIR}/job_player_view.cpp ${CMAKE_CURRENT_LIST_DIR}/job_player_view.h)
target_include_directories(lumitra_jiemian PUBLIC ${CMAKE_CURRENT_LIST_DIR})
target_link_libraries(lumitra_jiemian PUBLIC lumitra_gcode)
