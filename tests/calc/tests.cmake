korvex_test_sources(calc
  test_calculator.cpp
)

# The tool is run as a process; its path is compiled into the test.
if(TARGET korvex-calc)
  korvex_test_sources(calc test_tool.cpp)
  set_source_files_properties(${CMAKE_CURRENT_LIST_DIR}/test_tool.cpp PROPERTIES
    COMPILE_DEFINITIONS "KORVEX_CALC_TOOL=\"$<TARGET_FILE:korvex-calc>\"")
  cmake_language(DEFER CALL add_dependencies test_calc korvex-calc)
endif()
