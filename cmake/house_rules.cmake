# What every file of the house is compiled with. `house_rules` is linked by every library and program;
# `program_rules` comes on top for what goes into the program itself.
add_library(house_rules INTERFACE)
target_include_directories(house_rules INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(house_rules INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
    -Werror)
if(WIN32)
    target_compile_definitions(house_rules INTERFACE
        UNICODE _UNICODE WINVER=0x0601 _WIN32_WINNT=0x0601 _WIN32_IE=0x0600 NOMINMAX WIN32_LEAN_AND_MEAN)
    # A function pointer from GetProcAddress has no better type before it is cast to its own.
    target_compile_options(house_rules INTERFACE -municode -Wno-cast-function-type)
    target_link_options(house_rules INTERFACE -municode -static)
else()
    target_include_directories(house_rules INTERFACE ${CMAKE_SOURCE_DIR}/tests/native)
    # Objects of the program carry no type information that the check of virtual calls could read.
    target_compile_options(house_rules INTERFACE
        -fsanitize=address,undefined -fno-sanitize=vptr -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(house_rules INTERFACE -fsanitize=address,undefined)
endif()

add_library(program_rules INTERFACE)
target_link_libraries(program_rules INTERFACE house_rules)
# Small rather than fast: what is fast here is what asks the system little.
target_compile_options(program_rules INTERFACE
    -fno-exceptions -fno-rtti -fno-threadsafe-statics $<$<CONFIG:Release>:-Os> $<$<CONFIG:Release>:-ffunction-sections>)

# program_library(NAME SOURCES... LIBRARIES...): a part of the program. Those who use it, tests among them, are
# not held to the program's own compile options.
function(program_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC house_rules ${ARG_LIBRARIES} PRIVATE program_rules)
endfunction()
