korvex_test_sources(transform
)
