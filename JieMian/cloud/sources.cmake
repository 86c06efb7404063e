# The cloud services as the user meets them: log-in, personal centre, material
# store, material detail, upload, the update dialog and the controller of all.
target_sources(lumitra_jiemian PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/external_url.cpp ${CMAKE_CURRENT_LIST_DIR}/external_url.h
  ${CMAKE_CURRENT_LIST_DIR}/jk_deng_lu.cpp ${CMAKE_CURRENT_LIST_DIR}/jk_deng_lu.h
  ${CMAKE_CURRENT_LIST_DIR}/jk_deng_lu.ui
  ${CMAKE_CURRENT_LIST_DIR}/ge_ren_zhong_xin.cpp ${CMAKE_CURRENT_LIST_DIR}/ge_ren_zhong_xin.h
  ${CMAKE_CURRENT_LIST_DIR}/ge_ren_zhong_xin.ui
  ${CMAKE_CURRENT_LIST_DIR}/jk_su_cai.cpp ${CMAKE_CURRENT_LIST_DIR}/jk_su_cai.h
  ${CMAKE_CURRENT_LIST_DIR}/jk_su_cai.ui
  ${CMAKE_CURRENT_LIST_DIR}/su_cai_xiang_qing.cpp ${CMAKE_CURRENT_LIST_DIR}/su_cai_xiang_qing.h
  ${CMAKE_CURRENT_LIST_DIR}/su_cai_xiang_qing.ui
  ${CMAKE_CURRENT_LIST_DIR}/su_cai_shang_chuan.cpp ${CMAKE_CURRENT_LIST_DIR}/su_cai_shang_chuan.h
  ${CMAKE_CURRENT_LIST_DIR}/su_cai_shang_chuan.ui
  ${CMAKE_CURRENT_LIST_DIR}/geng_xin_xia_zai.cpp ${CMAKE_CURRENT_LIST_DIR}/geng_xin_xia_zai.h
  ${CMAKE_CURRENT_LIST_DIR}/geng_xin_xia_zai.ui
  ${CMAKE_CURRENT_LIST_DIR}/cloud_controller.cpp ${CMAKE_CURRENT_LIST_DIR}/cloud_controller.h)
target_include_directories(lumitra_jiemian PUBLIC ${CMAKE_CURRENT_LIST_DIR})
target_link_libraries(lumitra_jiemian PUBLIC lumitra_cloud)
