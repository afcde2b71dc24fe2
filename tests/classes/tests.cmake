korvex_test_sources(classes
  point_2d_test.cpp
  point_3d_test.cpp
  box_test.cpp
)
