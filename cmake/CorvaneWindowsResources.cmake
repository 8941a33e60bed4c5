# corvane_add_windows_resources(<target>)
#
# Gives a program its icon, its version information and its manifest.
set(CORVANE_WINDOWS_RESOURCES "${CMAKE_SOURCE_DIR}/src/app/windows/resources")

function(corvane_add_windows_resources target)
    enable_language(RC)
    set(resource_script "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc")
    configure_file("${CORVANE_WINDOWS_RESOURCES}/CorvaneClient.rc.in" "${resource_script}" @ONLY)
    set(icon "${CORVANE_WINDOWS_RESOURCES}/CorvaneClient.ico")
    set(manifest "${CMAKE_CURRENT_BINARY_DIR}/CorvaneClient.manifest")
    configure_file("${CORVANE_WINDOWS_RESOURCES}/CorvaneClient.manifest.in" "${manifest}" @ONLY)
    set_source_files_properties("${resource_script}" PROPERTIES
        INCLUDE_DIRECTORIES "${CORVANE_WINDOWS_RESOURCES};${CMAKE_CURRENT_BINARY_DIR}"
        OBJECT_DEPENDS "${icon};${manifest}"
    )
    target_sources(${target} PRIVATE "${resource_script}")
    if(MSVC)
        # The manifest is a resource already: the linker must not add one of its own.
        target_link_options(${target} PRIVATE /MANIFEST:NO)
    endif()
endfunction()
