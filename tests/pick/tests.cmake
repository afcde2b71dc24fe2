korvex_test_sources(pick
  test_pick.cpp
)
