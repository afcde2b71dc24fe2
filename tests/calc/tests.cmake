korvex_test_sources(calc
)
