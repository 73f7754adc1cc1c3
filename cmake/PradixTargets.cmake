# What the folders' own files share: finding sources, linking, tests.

# Collects the .cpp files below `folder` (relative to the caller's folder) into `out`. New files are noticed at the
# next build.
function(pradix_sources out folder)
    cmake_path(ABSOLUTE_PATH folder NORMALIZE OUTPUT_VARIABLE root)
    cmake_path(APPEND root "*.cpp" OUTPUT_VARIABLE pattern)
    file(GLOB_RECURSE found CONFIGURE_DEPENDS "${pattern}")
    set(${out} ${found} PARENT_SCOPE)
endfunction()

# Links those of the named targets that exist.
function(pradix_link target scope)
    foreach(dependency IN LISTS ARGN)
        if(TARGET ${dependency})
            target_link_libraries(${target} ${scope} ${dependency})
        endif()
    endforeach()
endfunction()

# Makes the libraries, modules or programs named behind `target` stand before `target` is used.
function(pradix_needs target)
    foreach(dependency IN LISTS ARGN)
        if(TARGET ${dependency})
            add_dependencies(${target} ${dependency})
        endif()
    endforeach()
endfunction()

# Whatever a library or module uses it links. Clang's sanitizers alone come with the program that loads it.
function(pradix_no_undefined target)
    if(NOT PRADIX_FUZZ)
        target_link_options(${target} PRIVATE -Wl,--no-undefined)
    endif()
endfunction()

# A shared library whose calls to itself need no detour: nothing ever replaces its symbols.
function(pradix_shared_library_options target)
    pradix_no_undefined(${target})
    target_compile_options(${target} PRIVATE -fno-semantic-interposition)
endfunction()

# A test program `name` of the sources in tests/`folder`. Each of its tests is a test of ctest's, run in the
# repository's root. Without sources there is no program.
function(pradix_test_program name folder)
    cmake_parse_arguments(ARG "" "" "LINKS;INCLUDES;NEEDS" ${ARGN})
    pradix_sources(sources ${folder})
    if(NOT sources)
        return()
    endif()
    add_executable(${name} ${sources})
    target_include_directories(${name} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}" "${CMAKE_CURRENT_SOURCE_DIR}/${folder}"
        ${ARG_INCLUDES})
    pradix_link(${name} PRIVATE ${ARG_LINKS} GTest::gmock GTest::gtest GTest::gtest_main rapidcheck)
    pradix_needs(${name} ${ARG_NEEDS})
    gtest_discover_tests(${name}
        TEST_PREFIX "${name}:"
        DISCOVERY_MODE PRE_TEST
        DISCOVERY_TIMEOUT 60
        WORKING_DIRECTORY "${CMAKE_SOURCE_DIR}"
        PROPERTIES TIMEOUT 120)
endfunction()

# Each scenario is a test: the headless host runs it in the repository's root and answers status 0.
function(pradix_scenario_tests)
    foreach(file IN LISTS ARGN)
        if(file MATCHES "\\.fail\\.scn$")
            continue()
        endif()
        file(RELATIVE_PATH shown "${CMAKE_SOURCE_DIR}" "${file}")
        add_test(NAME "scenario:${shown}" COMMAND pradix run "${shown}" WORKING_DIRECTORY "${CMAKE_SOURCE_DIR}")
        set_tests_properties("scenario:${shown}" PROPERTIES TIMEOUT 120)
    endforeach()
endfunction()
