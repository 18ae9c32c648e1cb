# GoogleTest comes from Debian's source package and is compiled with the same compiler as the tests.
set(QUORIN_GOOGLETEST /usr/src/googletest CACHE PATH "Source folder of GoogleTest")
add_library(quorin_gtest STATIC EXCLUDE_FROM_ALL ${QUORIN_GOOGLETEST}/googletest/src/gtest-all.cc)
target_include_directories(quorin_gtest SYSTEM PUBLIC ${QUORIN_GOOGLETEST}/googletest/include)
target_include_directories(quorin_gtest SYSTEM PRIVATE ${QUORIN_GOOGLETEST}/googletest)
# Tests wait for the system, not for themselves; unoptimised they are built in a third of the time.
set(QUORIN_TEST_OPTIONS -O0)
target_compile_options(quorin_gtest PRIVATE ${QUORIN_TEST_OPTIONS})
if(WIN32)
    target_link_options(quorin_gtest INTERFACE -static)
else()
    target_compile_options(quorin_gtest PUBLIC -fsanitize=address,undefined -fno-sanitize=vptr)
endif()

# What nearly every test includes is compiled once: a test then builds in a third of the time.
add_library(test_headers OBJECT EXCLUDE_FROM_ALL ${CMAKE_CURRENT_LIST_DIR}/test_headers.cpp)
target_link_libraries(test_headers PRIVATE quorin_gtest project_options)
target_compile_options(test_headers PRIVATE ${QUORIN_TEST_OPTIONS})
target_precompile_headers(test_headers PRIVATE
    <gtest/gtest.h> $<$<BOOL:${WIN32}>:${CMAKE_SOURCE_DIR}/platform/windows_ce.h>)

# quorin_test(NAME [ANY_SCREEN] SOURCES... LIBRARIES...): one test program, linked with GoogleTest and tests/support.
# ANY_SCREEN: what it tests does not depend on the screen, so that one screen a language is enough.
function(quorin_test name)
    cmake_parse_arguments(ARG "ANY_SCREEN" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LIBRARIES} test_support quorin_gtest project_options)
    target_compile_options(${name} PRIVATE ${QUORIN_TEST_OPTIONS})
    target_precompile_headers(${name} REUSE_FROM test_headers)
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    test_places(places ${name} ${ARG_ANY_SCREEN})
    foreach(place ${places})
        declare_test(${place} ${name})
    endforeach()
endfunction()
