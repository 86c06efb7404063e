# Editing operations on design items: drawn shapes, pens, transforms, combine,
# alignment, arrays, clipboard and text outlines, each with its undo command;
# the drawing tools and the selection tool of the design scene.
target_sources(lumitra_document PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/drawn_shapes.cpp ${CMAKE_CURRENT_LIST_DIR}/drawn_shapes.h
  ${CMAKE_CURRENT_LIST_DIR}/polyline_builder.cpp ${CMAKE_CURRENT_LIST_DIR}/polyline_builder.h
  ${CMAKE_CURRENT_LIST_DIR}/bezier_pen.cpp ${CMAKE_CURRENT_LIST_DIR}/bezier_pen.h
  ${CMAKE_CURRENT_LIST_DIR}/item_geometry.cpp ${CMAKE_CURRENT_LIST_DIR}/item_geometry.h
  ${CMAKE_CURRENT_LIST_DIR}/geometry_command.cpp ${CMAKE_CURRENT_LIST_DIR}/geometry_command.h
  ${CMAKE_CURRENT_LIST_DIR}/command_sequence.cpp ${CMAKE_CURRENT_LIST_DIR}/command_sequence.h
  ${CMAKE_CURRENT_LIST_DIR}/combine.cpp ${CMAKE_CURRENT_LIST_DIR}/combine.h
  ${CMAKE_CURRENT_LIST_DIR}/alignment.cpp ${CMAKE_CURRENT_LIST_DIR}/alignment.h
  ${CMAKE_CURRENT_LIST_DIR}/arrays.cpp ${CMAKE_CURRENT_LIST_DIR}/arrays.h
  ${CMAKE_CURRENT_LIST_DIR}/item_clipboard.cpp ${CMAKE_CURRENT_LIST_DIR}/item_clipboard.h
  ${CMAKE_CURRENT_LIST_DIR}/text_outline.cpp ${CMAKE_CURRENT_LIST_DIR}/text_outline.h
  ${CMAKE_CURRENT_LIST_DIR}/placement.cpp ${CMAKE_CURRENT_LIST_DIR}/placement.h
  ${CMAKE_CURRENT_LIST_DIR}/frame_geometry.cpp ${CMAKE_CURRENT_LIST_DIR}/frame_geometry.h
  ${CMAKE_CURRENT_LIST_DIR}/selection_frame.cpp ${CMAKE_CURRENT_LIST_DIR}/selection_frame.h
  ${CMAKE_CURRENT_LIST_DIR}/selection_tool.cpp ${CMAKE_CURRENT_LIST_DIR}/selection_tool.h
  ${CMAKE_CURRENT_LIST_DIR}/drawing_tools.cpp ${CMAKE_CURRENT_LIST_DIR}/drawing_tools.h
  ${CMAKE_CURRENT_LIST_DIR}/node_path.cpp ${CMAKE_CURRENT_LIST_DIR}/node_path.h
  ${CMAKE_CURRENT_LIST_DIR}/node_commands.cpp ${CMAKE_CURRENT_LIST_DIR}/node_commands.h
  ${CMAKE_CURRENT_LIST_DIR}/node_tool.cpp ${CMAKE_CURRENT_LIST_DIR}/node_tool.h)
# Offset and boolean operations on items.
target_sources(lumitra_document PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/outline_operations.cpp ${CMAKE_CURRENT_LIST_DIR}/outline_operations.h)
target_include_directories(lumitra_document PUBLIC ${CMAKE_CURRENT_LIST_DIR})
