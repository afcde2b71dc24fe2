korvex_test_sources(numeric
  poly_test.cpp
  quartic_test.cpp
)
