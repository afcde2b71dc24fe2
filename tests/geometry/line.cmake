korvex_test_sources(geometry
  line_test.cpp
  line3d_test.cpp
  plane_test.cpp
)
