korvex_test_sources(numeric
  linear_test.cpp
  linear_failure_test.cpp
  band_test.cpp
)
