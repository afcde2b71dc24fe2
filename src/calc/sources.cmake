target_sources(korvex PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/containers.cpp
  ${CMAKE_CURRENT_LIST_DIR}/calculator.cpp
  ${CMAKE_CURRENT_LIST_DIR}/parse.cpp
  ${CMAKE_CURRENT_LIST_DIR}/console.cpp
)
