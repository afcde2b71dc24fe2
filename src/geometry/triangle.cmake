target_sources(korvex PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/triangle.cpp
  ${CMAKE_CURRENT_LIST_DIR}/triangle_measure.cpp
  ${CMAKE_CURRENT_LIST_DIR}/triangle_contour.cpp
  ${CMAKE_CURRENT_LIST_DIR}/triangle_segment.cpp
)
