korvex_test_sources(geometry
  line_test.cpp
)
