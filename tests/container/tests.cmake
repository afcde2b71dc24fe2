korvex_test_sources(container
  container_test.cpp
)
