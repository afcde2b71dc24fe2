# Installs the built library into a scratch prefix, then configures, builds
# and runs a consumer project that finds it with find_package(korvex), and
# compiles the same program with the flags pkg-config gives for korvex.pc,
# and runs the installed korvex-calc.
#
# Inputs: KORVEX_BUILD_DIR, CONSUMER_SOURCE, WORK_DIR, GENERATOR, LIBDIR, CHECK_TOOL.

function(run_checked)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "command failed (${rc}): ${ARGN}\n${out}\n${err}")
  endif()
  set(last_output "${out}" PARENT_SCOPE)
endfunction()

set(prefix ${WORK_DIR}/prefix)
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})

run_checked(${CMAKE_COMMAND} --install ${KORVEX_BUILD_DIR} --prefix ${prefix})

# find_package route
run_checked(${CMAKE_COMMAND} -S ${CONSUMER_SOURCE} -B ${WORK_DIR}/consumer -G ${GENERATOR}
  -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_BUILD_TYPE=Release)
run_checked(${CMAKE_COMMAND} --build ${WORK_DIR}/consumer)
run_checked(${WORK_DIR}/consumer/korvex_consumer)
if(NOT last_output MATCHES "korvex consumer ok")
  message(FATAL_ERROR "consumer printed: ${last_output}")
endif()

# pkg-config route
find_program(PKG_CONFIG pkg-config REQUIRED)
find_program(CXX_COMPILER NAMES c++ g++ REQUIRED)
set(ENV{PKG_CONFIG_PATH} ${prefix}/${LIBDIR}/pkgconfig)
run_checked(${PKG_CONFIG} --cflags --libs korvex)
string(STRIP "${last_output}" pc_flags)
separate_arguments(pc_flags UNIX_COMMAND "${pc_flags}")
run_checked(${CXX_COMPILER} -std=c++17 ${CONSUMER_SOURCE}/main.cpp ${pc_flags}
  -Wl,-rpath,${prefix}/${LIBDIR} -o ${WORK_DIR}/pc_consumer)
run_checked(${WORK_DIR}/pc_consumer)
if(NOT last_output MATCHES "korvex consumer ok")
  message(FATAL_ERROR "pkg-config consumer printed: ${last_output}")
endif()

# The installed calculator tool runs from its own prefix (it finds the
# library through its RPATH).
if(CHECK_TOOL)
  run_checked(${prefix}/bin/korvex-calc "2^3^2")
  string(STRIP "${last_output}" tool_output)
  if(NOT tool_output STREQUAL "512")
    message(FATAL_ERROR "installed korvex-calc printed: ${last_output}")
  endif()
endif()
