korvex_test_sources(container
)
