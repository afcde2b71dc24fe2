target_sources(korvex PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/matrix.cpp
  ${CMAKE_CURRENT_LIST_DIR}/pseudo_inverse.cpp
  ${CMAKE_CURRENT_LIST_DIR}/gauss.cpp
  ${CMAKE_CURRENT_LIST_DIR}/small_systems.cpp
  ${CMAKE_CURRENT_LIST_DIR}/least_squares.cpp
  ${CMAKE_CURRENT_LIST_DIR}/band.cpp
)
