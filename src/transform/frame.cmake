target_sources(korvex PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/frame.cpp
  ${CMAKE_CURRENT_LIST_DIR}/frame_convert.cpp
  ${CMAKE_CURRENT_LIST_DIR}/frame_matrix.cpp
  ${CMAKE_CURRENT_LIST_DIR}/frame_gravity.cpp
)
