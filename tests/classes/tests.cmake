korvex_test_sources(classes
)
