target_sources(korvex PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/point_2d.cpp
  ${CMAKE_CURRENT_LIST_DIR}/point_3d.cpp
  ${CMAKE_CURRENT_LIST_DIR}/point_4d.cpp
  ${CMAKE_CURRENT_LIST_DIR}/box_2d.cpp
  ${CMAKE_CURRENT_LIST_DIR}/box_3d.cpp
)
