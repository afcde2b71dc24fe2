korvex_test_sources(transform
  matrix_test.cpp
  transf2d_test.cpp
  transf3d_test.cpp
)
