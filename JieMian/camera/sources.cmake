# The camera as the user meets it: the photo panel, the calibration dialog with
# its photo view, the calibration marks and the controller of both flows.
target_sources(lumitra_jiemian PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/jiao_zhun.cpp ${CMAKE_CURRENT_LIST_DIR}/jiao_zhun.h
  ${CMAKE_CURRENT_LIST_DIR}/jiao_zhun.ui
  ${CMAKE_CURRENT_LIST_DIR}/jiao_zhun_view.cpp ${CMAKE_CURRENT_LIST_DIR}/jiao_zhun_view.h
  ${CMAKE_CURRENT_LIST_DIR}/photo_panel.cpp ${CMAKE_CURRENT_LIST_DIR}/photo_panel.h
  ${CMAKE_CURRENT_LIST_DIR}/photo_panel.ui
  ${CMAKE_CURRENT_LIST_DIR}/calibration_marks.cpp ${CMAKE_CURRENT_LIST_DIR}/calibration_marks.h
  ${CMAKE_CURRENT_LIST_DIR}/camera_controller.cpp ${CMAKE_CURRENT_LIST_DIR}/camera_controller.h)
target_include_directories(lumitra_jiemian PUBLIC ${CMAKE_CURRENT_LIST_DIR})
target_link_libraries(lumitra_jiemian PUBLIC lumitra_camera lumitra_device)
