# zell_add_test(name SOURCES ... LIBRARIES ... [TIMEOUT seconds])
# One QtTest program, run by CTest on the offscreen platform; of what it prints only the failures are
# kept. Its reference pictures lie in the folder "reference" beside it (ZELL_REFERENCE_DIR in the code).
function(zell_add_test name)
    cmake_parse_arguments(arg "" "TIMEOUT" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    zell_configure_target(${name})
    target_compile_definitions(${name} PRIVATE
        ZELL_REFERENCE_DIR="${CMAKE_CURRENT_SOURCE_DIR}/reference")
    target_link_libraries(${name} PRIVATE zell_test_support Qt6::Test ${arg_LIBRARIES})
    add_test(NAME ${name} COMMAND ${name} -silent)
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 120)
    endif()
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${arg_TIMEOUT}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_LOGGING_RULES=qt.*.debug=false;TZ=Asia/Shanghai;LC_ALL=C.UTF-8;FONTCONFIG_FILE=${ZELL_SOURCE_DIR}/testkit/fonts.conf")
endfunction()
