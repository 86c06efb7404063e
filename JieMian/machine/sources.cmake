# The machine panel (serial connection, jog, origin, test fire, job controls,
# console) and the controller that carries out every machine control.
target_sources(lumitra_jiemian PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/machine_panel.cpp ${CMAKE_CURRENT_LIST_DIR}/machine_panel.h
  ${CMAKE_CURRENT_LIST_DIR}/machine_panel.ui
  ${CMAKE_CURRENT_LIST_DIR}/machine_controller.cpp ${CMAKE_CURRENT_LIST_DIR}/machine_controller.h
  ${CMAKE_CURRENT_LIST_DIR}/machine_controls.cpp
  ${CMAKE_CURRENT_LIST_DIR}/job_start_row.cpp
  ${CMAKE_CURRENT_LIST_DIR}/port_choice.cpp ${CMAKE_CURRENT_LIST_DIR}/port_choice.h
  ${CMAKE_CURRENT_LIST_DIR}/frame_area.cpp ${CMAKE_CURRENT_LIST_DIR}/frame_area.h
  ${CMAKE_CURRENT_LIST_DIR}/wifi_link_controller.cpp ${CMAKE_CURRENT_LIST_DIR}/wifi_link_controller.h
  ${CMAKE_CURRENT_LIST_DIR}/resume_dialog.cpp ${CMAKE_CURRENT_LIST_DIR}/resume_dialog.h
  ${CMAKE_CURRENT_LIST_DIR}/resume_dialog.ui
  ${CMAKE_CURRENT_LIST_DIR}/resume_offer.cpp ${CMAKE_CURRENT_LIST_DIR}/resume_offer.h
  ${CMAKE_CURRENT_LIST_DIR}/job_time_display.cpp ${CMAKE_CURRENT_LIST_DIR}/job_time_display.h)
target_include_directories(lumitra_jiemian PUBLIC ${CMAKE_CURRENT_LIST_DIR})
target_link_libraries(lumitra_jiemian PUBLIC lumitra_device)
