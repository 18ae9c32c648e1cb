# What everything is compiled with. Every library and program links `project_options`; what goes into the
# program itself links `program_options` as well.
add_library(project_options INTERFACE)
target_include_directories(project_options INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(project_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
    -Werror)
if(WIN32)
    target_compile_definitions(project_options INTERFACE
        UNICODE _UNICODE WINVER=0x0601 _WIN32_WINNT=0x0601 _WIN32_IE=0x0600 NOMINMAX WIN32_LEAN_AND_MEAN)
    # A function pointer from GetProcAddress has no better type before it is cast to its own.
    target_compile_options(project_options INTERFACE -municode -Wno-cast-function-type)
    target_link_options(project_options INTERFACE -municode -static)
else()
    target_include_directories(project_options INTERFACE ${CMAKE_SOURCE_DIR}/tests/native)
    # Objects of the program carry no type information that the check of virtual calls could read.
    target_compile_options(project_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize=vptr -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(project_options INTERFACE -fsanitize=address,undefined)
endif()

add_library(program_options INTERFACE)
target_link_libraries(program_options INTERFACE project_options)
# Small rather than fast: what is fast here is what asks the system little.
target_compile_options(program_options INTERFACE
    -fno-exceptions -fno-rtti -fno-threadsafe-statics $<$<CONFIG:Release>:-Os> $<$<CONFIG:Release>:-ffunction-sections>)

# program_library(NAME WINDOW_FREE SOURCES... [SOURCES SOURCES...] [LIBRARIES...]): one folder of the program. Its
# window-free sources are compiled for the building machine too, the others for the target only. Those who link
# it, tests among them, are not held to the program's own compile options.
function(program_library name)
    cmake_parse_arguments(ARG "" "" "WINDOW_FREE;SOURCES;LIBRARIES" ${ARGN})
    if(NOT WIN32)
        set(ARG_SOURCES)
    endif()
    add_library(${name} STATIC ${ARG_WINDOW_FREE} ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC project_options ${ARG_LIBRARIES} PRIVATE program_options)
endfunction()
