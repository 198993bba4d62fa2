# The three kinds of target that the tree consists of. Everything that holds for all of them is here.

add_library(OrvelloWarnings INTERFACE)
target_compile_options(OrvelloWarnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
# A precompiled header that does not fit costs time, no more.
target_compile_options(OrvelloWarnings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-error=invalid-pch>)

add_library(OrvelloBase INTERFACE)
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

# The layer graph. A library sees the headers of those that its DEPENDS names and no others, not even those that these see in
# turn: each has an include root of its own, build/include/<Name>, in which there is its folder alone. Linking is transitive.
# The graph is also written to build/graph.txt, for the check that holds the tree against it (Tests/Structure).

# Sets `variable` to the include roots of the Orvello:: targets in the arguments.
function(orvello_roots variable)
    set(roots ${ARGN})
    list(FILTER roots INCLUDE REGEX "^Orvello::")
    list(TRANSFORM roots REPLACE "^Orvello::" "${PROJECT_BINARY_DIR}/include/")
    set(${variable} ${roots} PARENT_SCOPE)
endfunction()

# Sets `variable` to the Orvello:: targets in the arguments and all that these depend on.
function(orvello_closure variable)
    set(closure ${ARGN})
    list(FILTER closure INCLUDE REGEX "^Orvello::")
    set(waiting ${closure})
    while(waiting)
        list(POP_FRONT waiting next)
        get_property(dependencies GLOBAL PROPERTY ORVELLO_DEPENDS_OF_${next})
        foreach(dependency ${dependencies})
            if(NOT dependency IN_LIST closure)
                list(APPEND closure ${dependency})
                list(APPEND waiting ${dependency})
            endif()
        endforeach()
    endwhile()
    set(${variable} ${closure} PARENT_SCOPE)
endfunction()

# orvello_draw(folder Name ...): notes in the graph that this target depends on what is named.
function(orvello_draw folder name)
    set(dependencies ${ARGN})
    list(FILTER dependencies INCLUDE REGEX "^Orvello::")
    set_property(GLOBAL PROPERTY ORVELLO_DEPENDS_OF_Orvello::${name} ${dependencies})
    list(JOIN dependencies " " words)
    string(REPLACE "Orvello::" "" words "${words}")
    set_property(GLOBAL APPEND PROPERTY ORVELLO_GRAPH "${folder} ${name}: ${words}")
endfunction()

# orvello_name_folder(variable folder): the name of the library in a folder below Sources/Orvello. Its include root is made.
function(orvello_name_folder variable folder)
    string(REPLACE "/" "" name ${folder})
    set(root ${PROJECT_BINARY_DIR}/include/${name})
    cmake_path(GET folder PARENT_PATH parent)
    file(MAKE_DIRECTORY ${root}/Orvello/${parent})
    file(CREATE_LINK ${PROJECT_SOURCE_DIR}/Sources/Orvello/${folder} ${root}/Orvello/${folder} SYMBOLIC)
    set(${variable} ${name} PARENT_SCOPE)
endfunction()

# What most sources include anyway is compiled once: for the libraries with the first of them, for the tests with their main.
# A compiler cache does better without, and so does whoever looks for an #include that is missing: the sanitizers' presets.
if(CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
endif()
set(precompiled_headers
    <QByteArray> <QDir> <QFile> <QList> <QObject> <QPointer> <QRectF> <QString> <QStringList> <QUrl> <QVariant> <algorithm>
    <array> <cmath> <functional> <limits> <map> <memory> <optional> <span> <string> <vector>)
set(ORVELLO_PRECOMPILED_FOR_OrvelloFoundation ${precompiled_headers})
set(ORVELLO_PRECOMPILED_FOR_OrvelloTestMain <gmock/gmock.h> <gtest/gtest.h> ${precompiled_headers})

# orvello_precompile(target first): the target uses the headers that are compiled with the first.
function(orvello_precompile target first)
    if(target STREQUAL first)
        target_precompile_headers(${target} PRIVATE ${ORVELLO_PRECOMPILED_FOR_${first}})
    else()
        target_precompile_headers(${target} REUSE_FROM ${first})
    endif()
endfunction()

# orvello_add_library(SOURCES ... DEPENDS ... [VIEWED]): the one static library of this folder, reached as Orvello:: and the
# folder's path without its slashes. DEPENDS is what it may include. VIEWED when the views see types of it.
function(orvello_add_library)
    cmake_parse_arguments(ARG "VIEWED" "" "SOURCES;DEPENDS" ${ARGN})
    cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY ${PROJECT_SOURCE_DIR}/Sources/Orvello OUTPUT_VARIABLE folder)
    orvello_name_folder(name ${folder})
    orvello_draw(Sources/Orvello/${folder} ${name} ${ARG_DEPENDS})
    orvello_roots(roots Orvello::${name} ${ARG_DEPENDS})
    add_library(Orvello${name} STATIC ${ARG_SOURCES})
    add_library(Orvello::${name} ALIAS Orvello${name})
    target_include_directories(Orvello${name} PRIVATE ${roots})
    target_link_libraries(Orvello${name} PUBLIC OrvelloBase ${ARG_DEPENDS} PRIVATE OrvelloWarnings)
    if(NOT ARG_SOURCES MATCHES "[.]mm") # The first library has no header compiled for Objective-C++.
        orvello_precompile(Orvello${name} OrvelloFoundation)
    endif()
    if(ARG_VIEWED)
        qt_extract_metatypes(Orvello${name}) # qmllint sees the properties in them.
    endif()
endfunction()

# orvello_add_views(...): QML files of this folder, for the one module of all (Sources/Orvello/Views.cmake).
function(orvello_add_views)
    list(TRANSFORM ARGN PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
    set_property(GLOBAL APPEND PROPERTY ORVELLO_VIEWS ${ARGN})
endfunction()

# orvello_use(target ...): a program's libraries. It sees the headers of all that they depend on, too.
function(orvello_use target)
    cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE folder)
    orvello_draw(${folder} ${target} ${ARGN})
    orvello_closure(seen ${ARGN})
    orvello_roots(roots ${seen})
    target_include_directories(${target} PRIVATE ${roots})
    target_link_libraries(${target} PRIVATE ${ARGN} OrvelloWarnings)
endfunction()

# What the sanitizer presets build, and nothing else: the programs of the unit tests, and those of them in which threads
# meet. The label of the latter is unit-threads, so that a pattern of labels with "unit" selects both.
add_custom_target(unit-tests)
add_custom_target(thread-tests)

# What `make bench` builds, and nothing else does.
add_custom_target(benchmarks)

# orvello_add_test(Name SOURCES ... DEPENDS ... [LABELS ...] [ENVIRONMENT name=value]): one GoogleTest program, which is one
# test of CTest's: a process for each of its cases would spend most of the time on starting. The shared main chooses the
# offscreen Qt platform and makes the application object. Single cases: run the program with --gtest_filter.
function(orvello_add_test name)
    cmake_parse_arguments(ARG "" "ENVIRONMENT" "SOURCES;DEPENDS;LABELS" ${ARGN})
    if(NOT ARG_LABELS)
        set(ARG_LABELS unit)
    endif()
    set(environment "")
    if(ARG_ENVIRONMENT)
        set(environment ENVIRONMENT "${ARG_ENVIRONMENT}")
    endif()
    add_executable(${name} ${ARG_SOURCES})
    orvello_use(${name} OrvelloTestSupport OrvelloTestMain ${ARG_DEPENDS})
    orvello_precompile(${name} OrvelloTestMain)
    add_test(NAME ${name} COMMAND ${name} --gtest_brief=1)
    set_tests_properties(${name} PROPERTIES LABELS "${ARG_LABELS}" TIMEOUT 600 ${environment})
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
    orvello_use(${name} benchmark::benchmark ${ARG_DEPENDS})
    add_dependencies(benchmarks ${name})
endfunction()

# orvello_add_fuzzer(Name SOURCES ... DEPENDS ... SEEDS folder [OPTIONS ...]): one libFuzzer program, built by the fuzz
# preset alone because it needs clang, and a short run of it as a test of the ordinary build, which builds it first. A
# run copies the seeds, so that what libFuzzer finds never lands in the source tree.
function(orvello_add_fuzzer name)
    cmake_parse_arguments(ARG "" "SEEDS" "SOURCES;DEPENDS;OPTIONS" ${ARGN})
    if(ORVELLO_FUZZ)
        add_executable(${name} ${ARG_SOURCES})
        orvello_use(${name} ${ARG_DEPENDS})
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
