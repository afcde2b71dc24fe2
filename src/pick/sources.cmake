target_sources(korvex PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/ray_pick.cpp
  ${CMAKE_CURRENT_LIST_DIR}/window_pick.cpp
)
