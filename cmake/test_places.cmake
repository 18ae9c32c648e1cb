# Where each test program runs. A place is this machine (`native`), the scripts' tests (`scripts`) or a world of its
# own: a system's language on a screen, `-hands` for the programs that need the screen for themselves, `-0` and `-1`
# for those of the whole program, with the language override cleared and set.
#
# Each pair of a place and a program is one test of ctest, named PLACE/PROGRAM, and one line of tests.txt in the
# build's folder, from which ./test takes the same pairs.

set(one_test ${CMAKE_SOURCE_DIR}/tools/lib/one_test.sh)

# test_places(RESULT NAME ANY_SCREEN)
function(test_places result name any_screen)
    if(NOT WIN32)
        set(places native)
    elseif(name MATCHES "^hands_")
        set(places en-240x320-hands ja-240x320-hands en-640x240-hands ja-640x240-hands)
    elseif(name MATCHES "^program_")
        # With the override cleared in each world; set once for each language and each screen.
        set(places en-240x320-0 ja-240x320-0 en-640x240-0 ja-640x240-0 en-240x320-1 ja-640x240-1)
    elseif(any_screen)
        # Each language and each screen once.
        set(places en-240x320 ja-640x240)
    else()
        set(places en-240x320 ja-240x320 en-640x240 ja-640x240)
    endif()
    set(${result} ${places} PARENT_SCOPE)
endfunction()

# A world is opened before the first test in it and closed after the last one, which run one after the other.
function(declare_world place)
    get_property(declared GLOBAL PROPERTY quorin_worlds)
    if(place IN_LIST declared)
        return()
    endif()
    set_property(GLOBAL APPEND PROPERTY quorin_worlds ${place})
    add_test(NAME ${place}/open COMMAND ${one_test} open ${place})
    add_test(NAME ${place}/close COMMAND ${one_test} close ${place})
    set_tests_properties(${place}/open PROPERTIES FIXTURES_SETUP ${place})
    set_tests_properties(${place}/close PROPERTIES FIXTURES_CLEANUP ${place})
endfunction()

# declare_test(PLACE PROGRAM)
function(declare_test place program)
    set(test ${place}/${program})
    add_test(NAME ${test} COMMAND ${one_test} run ${place} ${program})
    set_tests_properties(${test} PROPERTIES LABELS ${place} TIMEOUT 7200)
    if(NOT place STREQUAL "native")
        set_tests_properties(${test} PROPERTIES RESOURCE_LOCK ${place})
    endif()
    if(place MATCHES "^(en|ja)-")
        declare_world(${place})
        set_tests_properties(${test} PROPERTIES FIXTURES_REQUIRED ${place})
    endif()
    set_property(GLOBAL APPEND_STRING PROPERTY quorin_tests "${place} ${program}\n")
endfunction()

# Once all of them are declared.
function(write_tests)
    get_property(tests GLOBAL PROPERTY quorin_tests)
    file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/tests.txt CONTENT "${tests}" @ONLY)
endfunction()
