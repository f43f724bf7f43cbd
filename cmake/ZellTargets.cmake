# The conventions every target of the tree shares, in one place.

set(ZELL_SOURCE_DIR "${CMAKE_CURRENT_LIST_DIR}/..")
cmake_path(NORMAL_PATH ZELL_SOURCE_DIR)

# Language level, warnings, moc and uic, and includes that name the room ("store/ZellDatabase.h").
function(zell_configure_target target)
    set_target_properties(${target} PROPERTIES AUTOMOC ON AUTOUIC ON CXX_EXTENSIONS OFF)
    target_compile_features(${target} PUBLIC cxx_std_20)
    target_include_directories(${target} PUBLIC "${ZELL_SOURCE_DIR}")
    target_compile_definitions(${target} PRIVATE
        QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
        -Wold-style-cast
        $<$<BOOL:${ZELL_WARNINGS_AS_ERRORS}>:-Werror>)
    # On the board, files of any size and number open; notes on compilers of long ago are of no use.
    if(CMAKE_SIZEOF_VOID_P EQUAL 4)
        target_compile_definitions(${target} PRIVATE _FILE_OFFSET_BITS=64)
        target_compile_options(${target} PRIVATE -Wno-psabi)
    endif()
endfunction()

# zell_add_library(name SOURCES ... [PUBLIC ...] [PRIVATE ...])
# One static library per room.
function(zell_add_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
    add_library(${name} STATIC ${arg_SOURCES})
    zell_configure_target(${name})
    target_link_libraries(${name} PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE})
endfunction()

# zell_add_program(name SOURCES ... [LIBRARIES ...]): a program at the top of the build folder.
function(zell_add_program name)
    cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    zell_configure_target(${name})
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}")
endfunction()
