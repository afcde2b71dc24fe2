target_sources(korvex PRIVATE
)
