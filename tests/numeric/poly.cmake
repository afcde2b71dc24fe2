korvex_test_sources(numeric
)
