# How everything is compiled: the language, the warnings, where the results go.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Debug or Release" FORCE)
endif()

option(PRADIX_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
option(PRADIX_FUZZ "Build the fuzzer and everything for it; clang alone" OFF)

# Modules are found beside the program that loads them, and libraries beside whoever needs them.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
set(CMAKE_BUILD_RPATH "$ORIGIN")

find_program(PRADIX_CCACHE ccache)
if(PRADIX_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${PRADIX_CCACHE}")
endif()

add_compile_options(-Wall -Wextra -Wshadow -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 reports overlapping copies inside std::string's operator+ where there are none.
    add_compile_options(-Wno-restrict)
endif()

if(WIN32)
    # The system's headers define min and max as macros unless told not to. The compiler's own libraries become part
    # of each module, so that none of them has to be found beside it.
    add_compile_definitions(NOMINMAX STRICT)
    add_link_options(-static)
    # For scripts that stand in for what is not there to link with or to run on.
    find_package(Python3 REQUIRED COMPONENTS Interpreter)
endif()

if(PRADIX_SANITIZE)
    # The vptr check needs the type information of classes whose symbols the module hides on purpose.
    add_compile_options(-fsanitize=address,undefined -fno-sanitize=vptr -fno-sanitize-recover=undefined
        -fno-omit-frame-pointer -O1 -g1)
    add_link_options(-fsanitize=address,undefined)
    # Instrumented code confuses the flow analysis behind this warning.
    add_compile_options(-Wno-maybe-uninitialized)
endif()

if(PRADIX_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize=vptr,function
        -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
