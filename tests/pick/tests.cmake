korvex_test_sources(pick
)
