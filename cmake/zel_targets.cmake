# One call a target, so that CMakeLists.txt reads as the list of arrows. Sources are found by folder.

# Sets `result` to all sources below the given folders of `root`.
function(zel_sources result root)
    set(found)
    foreach(folder IN LISTS ARGN)
        file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/${root}/${folder}/*.cpp")
        list(APPEND found ${sources})
    endforeach()
    set(${result} ${found} PARENT_SCOPE)
endfunction()

# zel_library(name SHARED|STATIC [HIDDEN] FOLDERS ... [USES ...] [HIDES ...])
# HIDDEN: only what is marked for export is visible. No symbol of a shared library may stay unresolved.
# A library whose folders hold no source yet only passes its arrows on.
function(zel_library name kind)
    cmake_parse_arguments(arg "HIDDEN" "" "FOLDERS;USES;HIDES" ${ARGN})
    zel_sources(sources src ${arg_FOLDERS})
    if(NOT sources)
        add_library(${name} INTERFACE)
        target_include_directories(${name} INTERFACE "${CMAKE_SOURCE_DIR}/src")
        target_link_libraries(${name} INTERFACE ${arg_USES})
        return()
    endif()
    add_library(${name} ${kind} ${sources})
    target_include_directories(${name} PUBLIC "${CMAKE_SOURCE_DIR}/src")
    target_link_libraries(${name} PUBLIC ${arg_USES} PRIVATE ${arg_HIDES})
    if(arg_HIDDEN)
        set_target_properties(${name} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
    endif()
    if(kind STREQUAL SHARED AND NOT (ZEL_SANITIZE AND CMAKE_CXX_COMPILER_ID MATCHES "Clang"))  # clang links its sanitizer into programs only
        target_link_options(${name} PRIVATE -Wl,--no-undefined)
    endif()
endfunction()

# zel_program(name FOLDERS ... [USES ...] [HIDES ...])
function(zel_program name)
    cmake_parse_arguments(arg "" "" "FOLDERS;USES;HIDES" ${ARGN})
    zel_sources(sources src ${arg_FOLDERS})
    if(NOT sources)
        return()
    endif()
    add_executable(${name} ${sources})
    target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}/src")
    target_link_libraries(${name} PRIVATE ${arg_USES} ${arg_HIDES})
endfunction()

# zel_example(name [USES ...]): the program <name>_example of examples/<name>.cpp.
function(zel_example name)
    cmake_parse_arguments(arg "" "" "USES" ${ARGN})
    add_executable(${name}_example "${CMAKE_SOURCE_DIR}/examples/${name}.cpp")
    target_include_directories(${name}_example PRIVATE "${CMAKE_SOURCE_DIR}/src")
    target_link_libraries(${name}_example PRIVATE ${arg_USES})
endfunction()

# One program for each file <folder>/<prefix>*.cpp; the global property zel_programs_<prefix> names them all. WITH: further sources of each.
function(zel_programs folder prefix)
    cmake_parse_arguments(arg "" "" "USES;OPTIONS;WITH" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/${folder}/${prefix}*.cpp")
    foreach(source IN LISTS sources)
        get_filename_component(name "${source}" NAME_WE)
        add_executable(${name} "${source}" ${arg_WITH})
        target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}/src")
        target_link_libraries(${name} PRIVATE ${arg_USES})
        target_link_options(${name} PRIVATE ${arg_OPTIONS})
        set_property(GLOBAL APPEND PROPERTY "zel_programs_${prefix}" ${name})
    endforeach()
endfunction()

# Fuzz targets fuzz_<name>.cpp. In every build, ctest replays the inputs in <folder>/corpus/<name> once; the preset fuzz looks
# for further ones (build/fuzz/bin/fuzz_<name> fuzz/corpus/<name>).
function(zel_fuzzers folder)
    if(ZEL_FUZZ)
        zel_programs(${folder} "fuzz_" OPTIONS -fsanitize=fuzzer ${ARGN})
    else()
        zel_programs(${folder} "fuzz_" WITH "${CMAKE_SOURCE_DIR}/${folder}/replay.cpp" ${ARGN})
    endif()
    file(GLOB sources "${CMAKE_SOURCE_DIR}/${folder}/fuzz_*.cpp")
    foreach(source IN LISTS sources)
        get_filename_component(name "${source}" NAME_WE)
        string(REGEX REPLACE "^fuzz_" "" input "${name}")
        set(corpus "${CMAKE_SOURCE_DIR}/${folder}/corpus/${input}")
        if(NOT IS_DIRECTORY "${corpus}")
            message(FATAL_ERROR "${name} has no inputs: put at least one into ${folder}/corpus/${input}/")
        endif()
        add_test(NAME ${name}_corpus COMMAND ${name} -runs=0 "${corpus}")
        set_tests_properties(${name}_corpus PROPERTIES LABELS fuzz TIMEOUT 120)
    endforeach()
endfunction()

# zel_build_paths(name): a library that tells tests where the tree and the built programs are (tests/build_paths.h). No compile
# command carries these paths, so the compiler cache serves other clones too.
function(zel_build_paths name)
    set(source "${CMAKE_BINARY_DIR}/${name}/build_paths.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT [[#include "build_paths.h"

const std::string& zel::test::sourceFolder()
{
    static const std::string folder = "@CMAKE_SOURCE_DIR@";
    return folder;
}

const std::string& zel::test::programFolder()
{
    static const std::string folder = "@CMAKE_RUNTIME_OUTPUT_DIRECTORY@";
    return folder;
}
]] @ONLY)
    add_library(${name} STATIC "${source}")
    target_include_directories(${name} PUBLIC "${CMAKE_SOURCE_DIR}/tests")
endfunction()

# How tests are compiled: their own code neither optimised nor watched for undefined behaviour (what they test is), which halves their build.
function(zel_test_options name)
    target_compile_options(${name} PRIVATE -O0)
    if(ZEL_SANITIZE)
        target_compile_options(${name} PRIVATE -fno-sanitize=undefined)
    endif()
endfunction()

# zel_test_headers(name HEADERS ... [USES ...]): the headers that nearly all tests include, compiled once; further zel_test calls name it by HEADERS_OF.
function(zel_test_headers name)
    cmake_parse_arguments(arg "" "" "HEADERS;USES" ${ARGN})
    set(source "${CMAKE_BINARY_DIR}/${name}/nothing.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT "int main() {}\n")
    add_executable(${name} "${source}")  # a program like those that use the headers, so that all is compiled alike
    target_link_libraries(${name} PRIVATE GTest::gtest GTest::gmock ${arg_USES})
    target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
    zel_test_options(${name})
endfunction()

# zel_test(folder [HEADERS_OF target] [RUNS program...] [USES ...]): the program test_<folder> of all sources below tests/<folder>; its tests bear
# the label <folder>. Programs that it RUNS are built before it, if they exist yet.
function(zel_test folder)
    cmake_parse_arguments(arg "" "HEADERS_OF" "USES;RUNS" ${ARGN})
    zel_sources(sources tests ${folder})
    if(NOT sources)
        return()
    endif()
    set(name test_${folder})
    add_executable(${name} ${sources})
    target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}/src" "${CMAKE_SOURCE_DIR}/tests")
    target_link_libraries(${name} PRIVATE GTest::gtest_main GTest::gmock build_paths ${arg_USES})
    zel_test_options(${name})
    if(arg_HEADERS_OF)
        target_precompile_headers(${name} REUSE_FROM ${arg_HEADERS_OF})
    endif()
    foreach(program IN LISTS arg_RUNS)
        if(TARGET ${program})
            add_dependencies(${name} ${program})
        endif()
    endforeach()
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
        WORKING_DIRECTORY "${CMAKE_SOURCE_DIR}"
        PROPERTIES TIMEOUT 120 LABELS ${folder})
endfunction()

# zel_header_check(name USES ...): compiles each header below src/ alone, so that every header includes what it needs. A header that some
# source begins with is proved by that source. Those of the desktop are left out: each of them draws Qt's headers in.
function(zel_header_check name)
    cmake_parse_arguments(arg "" "" "USES" ${ARGN})
    file(GLOB_RECURSE headers RELATIVE "${CMAKE_SOURCE_DIR}/src" CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/*.h")
    list(FILTER headers EXCLUDE REGEX "^desktop/")
    file(GLOB_RECURSE bodies CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/*.cpp")
    foreach(body IN LISTS bodies)
        file(STRINGS "${body}" first REGEX "^#include" LIMIT_COUNT 1)
        string(REGEX REPLACE "^#include \"(.*)\"$" "\\1" first "${first}")
        list(REMOVE_ITEM headers "${first}")
    endforeach()
    set(sources)
    foreach(header IN LISTS headers)
        string(REGEX REPLACE "\\.h$" ".cpp" source "${CMAKE_BINARY_DIR}/${name}/${header}")
        file(CONFIGURE OUTPUT "${source}" CONTENT "#include \"${header}\"\n" @ONLY)
        list(APPEND sources "${source}")
    endforeach()
    if(sources)
        add_library(${name} OBJECT ${sources})
        target_link_libraries(${name} PRIVATE ${arg_USES})
        target_compile_options(${name} PRIVATE -O0 -g0)
        if(ZEL_SANITIZE)
            target_compile_options(${name} PRIVATE -fno-sanitize=all)
        endif()
    endif()
endfunction()
