korvex_test_sources(container
  container_test.cpp
  failure_test.cpp
)
