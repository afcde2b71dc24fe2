target_sources(korvex PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/tolerance.cpp
  ${CMAKE_CURRENT_LIST_DIR}/scalar.cpp
  ${CMAKE_CURRENT_LIST_DIR}/vector2d.cpp
  ${CMAKE_CURRENT_LIST_DIR}/vector3d.cpp
  ${CMAKE_CURRENT_LIST_DIR}/point.cpp
  ${CMAKE_CURRENT_LIST_DIR}/point4h.cpp
  ${CMAKE_CURRENT_LIST_DIR}/complex.cpp
)
