target_sources(korvex PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/poly_arith.cpp
  ${CMAKE_CURRENT_LIST_DIR}/poly_real.cpp
  ${CMAKE_CURRENT_LIST_DIR}/poly_complex.cpp
  ${CMAKE_CURRENT_LIST_DIR}/poly_hqr.cpp
  ${CMAKE_CURRENT_LIST_DIR}/poly_interval.cpp
  ${CMAKE_CURRENT_LIST_DIR}/optimize.cpp
)
