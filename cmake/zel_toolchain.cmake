# Compiler, linker and folders: the same for every target.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release)
endif()

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")

# The compiler cache serves every clone: paths below the tree are looked up relative to it, and precompiled headers count by what they hold.
find_program(ZEL_CCACHE ccache)
find_program(ZEL_ENV env)
if(ZEL_CCACHE AND ZEL_ENV)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${ZEL_ENV}" "CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}" CCACHE_NOHASHDIR=1
        CCACHE_SLOPPINESS=pch_defines,time_macros "${ZEL_CCACHE}")
endif()
find_program(ZEL_LLD NAMES ld.lld)
if(ZEL_LLD)
    add_link_options(-fuse-ld=lld)
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(ZEL_WERROR)
    add_compile_options(-Werror)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    add_compile_options(-Wno-restrict)    # false alarms on "text" + string: https://gcc.gnu.org/bugzilla/show_bug.cgi?id=105651
endif()
add_compile_definitions($<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-fpch-preprocess)    # lets the compiler cache see what a precompiled header holds
endif()
if(CMAKE_BUILD_TYPE STREQUAL "Release")      # what is shipped opens files of strangers
    add_compile_options(-D_FORTIFY_SOURCE=2 -fstack-protector-strong -fstack-clash-protection)
    add_link_options(-Wl,-z,relro,-z,now,-z,noexecstack)
    include(CheckPIESupported)
    check_pie_supported(LANGUAGES CXX)       # programs are linked position-independent
endif()

if(ZEL_SANITIZE)
    set(zel_sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_compile_options(${zel_sanitizers} -O1 -g1)
    add_link_options(${zel_sanitizers})
endif()
if(ZEL_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
        message(FATAL_ERROR "ZEL_FUZZ needs clang (preset fuzz)")
    endif()
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
