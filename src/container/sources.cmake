target_sources(korvex PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/chains.cpp
  ${CMAKE_CURRENT_LIST_DIR}/strings.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dbl_array.cpp
)
