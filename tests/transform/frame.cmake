korvex_test_sources(transform
  frame_test.cpp
)
