korvex_test_sources(geometry
)
