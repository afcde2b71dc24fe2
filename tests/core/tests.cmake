korvex_test_sources(core
)
