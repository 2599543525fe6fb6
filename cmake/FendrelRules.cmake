# Every rule that the compiler holds our code to, in one target, and the two functions that make a library and a test.

option(FENDREL_TESTS "Build the tests" ON)
option(FENDREL_BENCHMARKS "Build the benchmarks" OFF)
option(FENDREL_FUZZ "Build the fuzz targets and nothing else; wants clang" OFF)
option(FENDREL_TIME_TRAVEL "Build `fendrelctl debug skip`, by which tests let minutes pass" OFF)
set(FENDREL_SANITIZE "" CACHE STRING "Sanitizers to build with: empty, address,undefined or thread")

set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

add_library(fendrel_rules INTERFACE)
target_compile_features(fendrel_rules INTERFACE cxx_std_20)
target_compile_options(fendrel_rules INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Wnon-virtual-dtor -Werror)
target_compile_definitions(fendrel_rules INTERFACE
    FENDREL_VERSION="${PROJECT_VERSION}"
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH QT_NO_KEYWORDS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_include_directories(fendrel_rules INTERFACE "${PROJECT_SOURCE_DIR}/src")
target_link_options(fendrel_rules INTERFACE -Wl,--as-needed)

if(FENDREL_SANITIZE)
    # Everything is built with the sanitizer, generated code included, or the reports have holes.
    add_compile_options(-fsanitize=${FENDREL_SANITIZE} -fno-omit-frame-pointer -g1)
    add_link_options(-fsanitize=${FENDREL_SANITIZE})
    # The compiler documents false alarms of this warning among the sanitizers' own checks.
    target_compile_options(fendrel_rules INTERFACE -Wno-maybe-uninitialized)
endif()

# What every test passes to the sanitizers.
set(FENDREL_SANITIZER_OPTIONS
    # Programs are started by a fork, and the child does nothing but start them.
    "TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/cmake/tsan.suppressions:die_after_fork=0"
    "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/cmake/lsan.suppressions:print_suppressions=0")

# A leak of ours is told from Qt Quick's own by its whole stack, which the sanitizer reads the slow way.
set(FENDREL_WHOLE_STACKS "ASAN_OPTIONS=fast_unwind_on_malloc=0")

# fendrel_library(<name> SOURCES <files> [LINKS <targets>]): the one static library of a folder.
function(fendrel_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
    add_library(${name} STATIC ${arg_SOURCES})
    target_link_libraries(${name} PUBLIC fendrel_rules ${arg_LINKS})
    target_precompile_headers(${name} REUSE_FROM fendrel_headers)
endfunction()

# fendrel_time_travel(<target>): lets it, and what links to it, know whether time travel is built in.
function(fendrel_time_travel target)
    target_compile_definitions(${target} PUBLIC $<$<BOOL:${FENDREL_TIME_TRAVEL}>:FENDREL_TIME_TRAVEL>)
endfunction()

# fendrel_test(<name> [LINKS <targets>] [COMMAND <what runs it>]): one test program from <name>.cpp, run without a
# display.
function(fendrel_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS;COMMAND")
    add_executable(${name} ${name}.cpp)
    target_link_libraries(${name} PRIVATE fendrel_rules Qt6::Test ${arg_LINKS})
    target_precompile_headers(${name} REUSE_FROM fendrel_headers)
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    target_compile_definitions(${name} PRIVATE TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data")
    add_test(NAME ${name} COMMAND ${arg_COMMAND} $<TARGET_FILE:${name}>)
    set_tests_properties(${name} PROPERTIES
        TIMEOUT 120
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;TZ=Europe/Berlin;LC_ALL=C.UTF-8;${FENDREL_SANITIZER_OPTIONS}")
endfunction()
