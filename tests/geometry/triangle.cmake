korvex_test_sources(geometry
  triangle_test.cpp
)
