# Compiler settings shared by every target of the project.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

option(HORAVEX_SANITIZE "Address and undefined-behaviour sanitizers" OFF)
option(HORAVEX_COVERAGE "Count what is run, with clang++" OFF)
option(HORAVEX_FUZZ "Instrument for libFuzzer, which takes clang" OFF)
# What their headers take to compile is most of the work in some targets. Sources in one must not
# define the same name, not even one of their own.
option(HORAVEX_UNITY "Compile the sources of some targets eight at a time" OFF)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    # Without these it never finds a file again that is compiled with a precompiled header.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        ${CCACHE_PROGRAM})
    add_compile_options(-fpch-preprocess)
endif()

# The year's table must come out the same on every machine and at every optimisation level: no
# fused multiply-add, and never -ffast-math.
add_compile_options(-ffp-contract=off)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    set(warnings_of_gcc -Wduplicated-cond -Wlogical-op)
    # g++ 12 sees overlapping, overlong and outlying copies inside std::string where it optimises
    # (GCC bugs 105651 and 105329); the sanitizers look for real ones.
    set(no_warnings -Wno-restrict -Wno-stringop-overflow -Wno-stringop-overread -Wno-array-bounds)
else()
    # clang, which builds for libFuzzer alone, finds other things to warn of.
    set(no_warnings -Wno-error)
endif()
add_compile_options(-Werror -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow
                    -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual
                    ${warnings_of_gcc} -Wimplicit-fallthrough)
add_compile_options(${no_warnings})

# Input that means harm finds a program that ends instead of one that obeys: guarded frames, stack
# and branches, library calls and containers that check their bounds, addresses that differ from
# start to start and tables of calls that nobody can write to. tests/checks/hardened.sh reads it
# back from the built programs. The year's table is the same to the last bit with and without.
add_compile_options(-fPIE -fstack-protector-strong -fstack-clash-protection -fcf-protection)
add_compile_definitions(_GLIBCXX_ASSERTIONS)
if(NOT HORAVEX_SANITIZE)
    # It needs an optimised build, and hides from the sanitizers what it catches itself.
    add_compile_options($<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>)
endif()
add_link_options($<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:-pie>
                 -Wl,-z,relro,-z,now,-z,noexecstack)

# A program loads only the libraries that it uses, and not all that its own libraries could.
add_link_options(-Wl,--as-needed)

if(HORAVEX_SANITIZE)
    # The check of an object's type opens a pipe, and takes a want of descriptors, which a test
    # brings about, for a broken object.
    add_compile_options(-fsanitize=address,undefined -fno-sanitize=vptr -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
if(HORAVEX_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
if(HORAVEX_COVERAGE)
    add_compile_options(-fprofile-instr-generate -fcoverage-mapping)
    add_link_options(-fprofile-instr-generate)
endif()
