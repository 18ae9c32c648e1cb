# delayed_library(NAME DLL FUNCTIONS...): an import library for these functions of a system library, which is
# loaded at the first call of one of them instead of at the start of the program.
function(delayed_library name dll)
    set(definition ${CMAKE_CURRENT_BINARY_DIR}/${name}.def)
    set(archive ${CMAKE_CURRENT_BINARY_DIR}/lib${name}.a)
    list(JOIN ARGN "\n" functions)
    file(CONFIGURE OUTPUT ${definition} CONTENT "LIBRARY ${dll}\nEXPORTS\n${functions}\n")
    add_custom_command(OUTPUT ${archive}
        COMMAND ${CMAKE_DLLTOOL} --input-def ${definition} --output-delaylib ${archive}
        DEPENDS ${definition}
        VERBATIM)
    add_custom_target(${name}_archive DEPENDS ${archive})
    add_library(${name} INTERFACE)
    add_dependencies(${name} ${name}_archive)
    target_link_libraries(${name} INTERFACE ${archive} delayimp)
endfunction()
