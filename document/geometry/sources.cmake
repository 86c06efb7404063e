# Area operations on outlines (offset, kerf, weld and the other booleans),
# built on Clipper (libpolyclipping-dev).
pkg_check_modules(POLYCLIPPING REQUIRED IMPORTED_TARGET polyclipping)
target_sources(lumitra_document PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/cubic_flattening.h
  ${CMAKE_CURRENT_LIST_DIR}/clipper_bridge.cpp ${CMAKE_CURRENT_LIST_DIR}/clipper_bridge.h
  ${CMAKE_CURRENT_LIST_DIR}/path_offset.cpp ${CMAKE_CURRENT_LIST_DIR}/path_offset.h
  ${CMAKE_CURRENT_LIST_DIR}/path_booleans.cpp ${CMAKE_CURRENT_LIST_DIR}/path_booleans.h)
target_include_directories(lumitra_document PUBLIC ${CMAKE_CURRENT_LIST_DIR})
target_link_libraries(lumitra_document PRIVATE PkgConfig::POLYCLIPPING)
