# The three kinds of target that the tree consists of. Everything that holds for all of them is here.

add_library(OrvelloWarnings INTERFACE)
target_compile_options(OrvelloWarnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)

add_library(OrvelloBase INTERFACE)
target_include_directories(OrvelloBase INTERFACE ${PROJECT_SOURCE_DIR}/Sources)
target_compile_definitions(
    OrvelloBase INTERFACE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH
                          QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(Qt6_VERSION VERSION_GREATER_EQUAL 6.5)
    # Warnings are errors, and these versions warn of what 6.4 has no other name for.
    target_compile_definitions(OrvelloBase INTERFACE QT_WARN_DEPRECATED_UP_TO=0x060400)
endif()
# Dozens of programs are linked here, and mold takes a tenth of the time of the default linker.
find_program(ORVELLO_MOLD mold)
if(LINUX AND ORVELLO_MOLD)
    target_link_options(OrvelloBase INTERFACE -fuse-ld=mold)
endif()
if(ORVELLO_SANITIZE)
    target_compile_options(OrvelloBase INTERFACE -fsanitize=${ORVELLO_SANITIZE} -fno-omit-frame-pointer
                                                 -fno-sanitize-recover=all)
    target_link_options(OrvelloBase INTERFACE -fsanitize=${ORVELLO_SANITIZE})
endif()

# orvello_add_library(Name SOURCES ... DEPENDS ...): one static library, reached as Orvello::Name. DEPENDS is public and
# is the layer graph: a folder can include only what it names here.
function(orvello_add_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
    add_library(Orvello${name} STATIC ${ARG_SOURCES})
    add_library(Orvello::${name} ALIAS Orvello${name})
    target_link_libraries(Orvello${name} PUBLIC OrvelloBase ${ARG_DEPENDS} PRIVATE OrvelloWarnings)
endfunction()

# What the sanitizer presets build, and nothing else: the programs of the unit tests, and those of them in which threads
# meet. The label of the latter is unit-threads, so that a pattern of labels with "unit" selects both.
add_custom_target(unit-tests)
add_custom_target(thread-tests)

# What `make bench` builds, and nothing else does.
add_custom_target(benchmarks)

# orvello_add_test(Name SOURCES ... DEPENDS ... [LABELS ...] [PREFIX text] [ENVIRONMENT name=value]): one GoogleTest
# program, its tests found by CTest, their names preceded by the prefix. The shared main chooses the offscreen Qt platform
# and makes the application object.
function(orvello_add_test name)
    cmake_parse_arguments(ARG "" "PREFIX;ENVIRONMENT" "SOURCES;DEPENDS;LABELS" ${ARGN})
    if(NOT ARG_LABELS)
        set(ARG_LABELS unit)
    endif()
    set(environment "")
    if(ARG_ENVIRONMENT)
        set(environment ENVIRONMENT "${ARG_ENVIRONMENT}")
    endif()
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE OrvelloTestSupport OrvelloTestMain ${ARG_DEPENDS} OrvelloWarnings)
    gtest_discover_tests(
        ${name}
        TEST_PREFIX "${ARG_PREFIX}"
        DISCOVERY_TIMEOUT 120
        PROPERTIES LABELS "${ARG_LABELS}" TIMEOUT 120 ${environment})
    if(ARG_LABELS MATCHES "unit")
        add_dependencies(unit-tests ${name})
    endif()
    if(ARG_LABELS MATCHES "threads")
        add_dependencies(thread-tests ${name})
    endif()
endfunction()

# orvello_add_benchmark(Name SOURCES ... DEPENDS ...): one Google Benchmark program, run by `make bench`.
function(orvello_add_benchmark name)
    cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE benchmark::benchmark ${ARG_DEPENDS} OrvelloWarnings)
    add_dependencies(benchmarks ${name})
endfunction()

# orvello_add_fuzzer(Name SOURCES ... DEPENDS ... SEEDS folder [OPTIONS ...]): one libFuzzer program, built by the fuzz
# preset alone because it needs clang, and a short run of it as a test of the ordinary build, which builds it first. A
# run copies the seeds, so that what libFuzzer finds never lands in the source tree.
function(orvello_add_fuzzer name)
    cmake_parse_arguments(ARG "" "SEEDS" "SOURCES;DEPENDS;OPTIONS" ${ARGN})
    if(ORVELLO_FUZZ)
        add_executable(${name} ${ARG_SOURCES})
        target_link_libraries(${name} PRIVATE ${ARG_DEPENDS} OrvelloWarnings)
        target_link_options(${name} PRIVATE -fsanitize=fuzzer)
        set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_SOURCE_DIR}/build/fuzz/fuzzers)
        add_dependencies(fuzzers ${name})
    elseif(NOT ORVELLO_SANITIZE)
        add_test(NAME Fuzz.${name} COMMAND ${PROJECT_SOURCE_DIR}/tools/fuzz-run
                                           ${PROJECT_SOURCE_DIR}/build/fuzz/fuzzers/${name} ${ARG_SEEDS} ${ARG_OPTIONS})
        set_tests_properties(
            Fuzz.${name}
            PROPERTIES LABELS fuzz
                       TIMEOUT 180
                       FIXTURES_REQUIRED fuzzers)
    endif()
endfunction()
