# corvane_add_package(<program> <library>)
#
# The target `package`: a folder with the program and the library that it loads, which runs on a
# Windows machine with nothing else installed, and a zip of it. For cross-builds with MinGW-w64.
function(corvane_add_package program library)
    if(NOT MINGW OR NOT CMAKE_CROSSCOMPILING)
        return()
    endif()
    set(runtime_folders "${CORVANE_WIN64_PREFIX}/bin")
    foreach(name libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
        execute_process(COMMAND "${CMAKE_CXX_COMPILER}" "-print-file-name=${name}"
            OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
        cmake_path(GET path PARENT_PATH folder)
        cmake_path(NORMAL_PATH folder)
        list(APPEND runtime_folders "${folder}")
    endforeach()
    list(REMOVE_DUPLICATES runtime_folders)
    execute_process(COMMAND "${CMAKE_CXX_COMPILER}" -print-file-name=libkernel32.a
        OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
    cmake_path(GET path PARENT_PATH system_folder)

    set(name "Corvane-${PROJECT_VERSION}-windows-x64")
    add_custom_target(package
        COMMAND "${CMAKE_COMMAND}"
            "-DPROGRAM=$<TARGET_FILE:${program}>"
            "-DLIBRARY=$<TARGET_FILE:${library}>"
            "-DPACKAGE=${CMAKE_BINARY_DIR}/package/${name}"
            "-DPREFIX=${CORVANE_WIN64_PREFIX}"
            "-DRUNTIME_FOLDERS=${runtime_folders}"
            "-DSYSTEM_FOLDER=${system_folder}"
            "-DOBJDUMP=${CMAKE_OBJDUMP}"
            "-DSTRIP=${CMAKE_STRIP}"
            "-DLICENCE=${CMAKE_SOURCE_DIR}/LICENSE"
            -P "${CMAKE_SOURCE_DIR}/cmake/PackageWindows.cmake"
        DEPENDS ${program} ${library}
        COMMENT "Packaging ${name}"
        VERBATIM
    )
endfunction()
