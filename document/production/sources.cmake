# Production tools: the parameter library and the material test card.
target_sources(lumitra_document PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/parameter_library.cpp ${CMAKE_CURRENT_LIST_DIR}/parameter_library.h
  ${CMAKE_CURRENT_LIST_DIR}/test_card.cpp ${CMAKE_CURRENT_LIST_DIR}/test_card.h)
target_include_directories(lumitra_document PUBLIC ${CMAKE_CURRENT_LIST_DIR})
