target_sources(korvex PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/line2d.cpp
  ${CMAKE_CURRENT_LIST_DIR}/line3d.cpp
  ${CMAKE_CURRENT_LIST_DIR}/line3d_int.cpp
  ${CMAKE_CURRENT_LIST_DIR}/plane.cpp
  ${CMAKE_CURRENT_LIST_DIR}/plane3.cpp
)
