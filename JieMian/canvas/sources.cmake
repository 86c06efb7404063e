# The design pages (tabs of scenes and views) and the project commands.
target_sources(lumitra_jiemian PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/design_pages.cpp ${CMAKE_CURRENT_LIST_DIR}/design_pages.h
  ${CMAKE_CURRENT_LIST_DIR}/project_commands.cpp ${CMAKE_CURRENT_LIST_DIR}/project_commands.h
  ${CMAKE_CURRENT_LIST_DIR}/recent_files.cpp ${CMAKE_CURRENT_LIST_DIR}/recent_files.h
  ${CMAKE_CURRENT_LIST_DIR}/recent_files_menu.cpp ${CMAKE_CURRENT_LIST_DIR}/recent_files_menu.h)
target_include_directories(lumitra_jiemian PUBLIC ${CMAKE_CURRENT_LIST_DIR})
