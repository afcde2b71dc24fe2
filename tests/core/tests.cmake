korvex_test_sources(core
  scalar_test.cpp
  vector_test.cpp
  point_test.cpp
  complex_test.cpp
)
