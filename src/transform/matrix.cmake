target_sources(korvex PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/matrix2d.cpp
  ${CMAKE_CURRENT_LIST_DIR}/shear.cpp
  ${CMAKE_CURRENT_LIST_DIR}/matrix3d.cpp
  ${CMAKE_CURRENT_LIST_DIR}/rotate3d.cpp
  ${CMAKE_CURRENT_LIST_DIR}/apply.cpp
  ${CMAKE_CURRENT_LIST_DIR}/apply_box.cpp
  ${CMAKE_CURRENT_LIST_DIR}/transf2d.cpp
  ${CMAKE_CURRENT_LIST_DIR}/transf3d.cpp
  ${CMAKE_CURRENT_LIST_DIR}/transf3d_define.cpp
  ${CMAKE_CURRENT_LIST_DIR}/point_angle.cpp
)
