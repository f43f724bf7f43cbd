# zell_add_benchmark(name SOURCES ... LIBRARIES ...): one Google Benchmark program with the main
# function and the yardstick of benchmarks/support; `./dev bench` runs all of them.
function(zell_add_benchmark name)
    cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    zell_configure_target(${name})
    target_link_libraries(${name} PRIVATE zell_benchmark_support ${arg_LIBRARIES})
    set_target_properties(${name} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/benchmarks")
endfunction()
