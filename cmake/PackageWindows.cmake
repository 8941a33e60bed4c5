# Fills PACKAGE with PROGRAM, the LIBRARY it loads and everything they need beside them, and zips the
# folder.
#
# Which DLLs those are follows from the import tables of both and of the plugins: one that
# lies in RUNTIME_FOLDERS is shipped, any other must be one of Windows itself, for which
# SYSTEM_FOLDER has an import library, or one of its API sets. Every library shipped brings its
# licence.
cmake_minimum_required(VERSION 3.25)

# Qt looks for these by itself, so no import names them.
set(plugins
    platforms/qwindows.dll
    styles/qwindowsvistastyle.dll
    tls/qschannelbackend.dll
)

# What a shipped file is part of, and the Debian package that carries the licence of that.
set(licences
    "^Qt6WebSockets|Qt WebSockets|libqt6websockets6"
    "^(Qt6|q)|Qt|libqt6core6"
    "^lib(crypto|ssl)-|OpenSSL|libssl3"
    "^libaom|AOM|libaom3"
    "^libdav1d|dav1d|libdav1d6"
    "^libdatachannel|libdatachannel|libdatachannel-dev"
    "^lib(stdc|gcc)|GCC runtime|gcc-mingw-w64-x86-64-posix-runtime"
    "^libwinpthread|MinGW-w64|mingw-w64-x86-64-dev"
)
set(linked_in "fmt|libfmt-dev" "spdlog|libspdlog-dev" "JSON for Modern C++|nlohmann-json3-dev")
# The full texts that those licences refer to.
set(common_licences Apache-2.0 GPL-2 GPL-3 LGPL-2.1 LGPL-3)

function(read_imports file result)
    execute_process(COMMAND "${OBJDUMP}" --private-headers "${file}"
        OUTPUT_VARIABLE headers COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "DLL Name: [^\r\n]+" imports "${headers}")
    list(TRANSFORM imports REPLACE "DLL Name: " "")
    set(${result} ${imports} PARENT_SCOPE)
endfunction()

function(require_system_library library importer)
    string(TOLOWER "${library}" lower)
    if(lower MATCHES "^api-ms-win-")
        return()
    endif()
    string(REGEX REPLACE "\\.dll$" "" stem "${lower}")
    foreach(name "${stem}" "${lower}")
        if(EXISTS "${SYSTEM_FOLDER}/lib${name}.a")
            return()
        endif()
    endforeach()
    message(FATAL_ERROR "${importer} needs ${library}: neither found nor a part of Windows")
endfunction()

# Copies what `files` import, directly or through one another, beside the program.
function(ship_imports files)
    set(seen)
    while(files)
        list(POP_FRONT files file)
        read_imports("${file}" imports)
        list(REMOVE_ITEM imports ${seen})
        list(APPEND seen ${imports})
        foreach(library IN LISTS imports)
            unset(path)
            find_file(path "${library}" PATHS ${RUNTIME_FOLDERS}
                NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH NO_CACHE)
            if(path)
                file(COPY "${path}" DESTINATION "${PACKAGE}")
                list(APPEND files "${path}")
            else()
                require_system_library("${library}" "${file}")
            endif()
        endforeach()
    endwhile()
endfunction()

function(ship_licence part package)
    file(GLOB texts "${PREFIX}/share/licenses/${part}/*")
    if(NOT texts)
        set(texts "/usr/share/doc/${package}/copyright")
    endif()
    foreach(text IN LISTS texts)
        if(NOT EXISTS "${text}")
            message(FATAL_ERROR "No licence of ${part} at ${text}: install ${package}")
        endif()
        cmake_path(GET text FILENAME name)
        configure_file("${text}" "${PACKAGE}/licences/${part}/${name}.txt" COPYONLY)
    endforeach()
endfunction()

function(ship_licence_of file)
    cmake_path(GET file FILENAME name)
    foreach(entry IN LISTS licences)
        string(REGEX MATCH "^(.*)\\|([^|]+)\\|([^|]+)$" entry "${entry}")
        set(part "${CMAKE_MATCH_2}")
        set(package "${CMAKE_MATCH_3}")
        if(name MATCHES "${CMAKE_MATCH_1}")
            ship_licence("${part}" "${package}")
            return()
        endif()
    endforeach()
    cmake_path(GET file STEM LAST_ONLY stem)
    ship_licence("${stem}" "${stem}")
endfunction()

function(ship_licences)
    configure_file("${LICENCE}" "${PACKAGE}/licences/Corvane.txt" COPYONLY)
    file(GLOB_RECURSE libraries "${PACKAGE}/*.dll")
    cmake_path(GET LIBRARY FILENAME own)
    list(REMOVE_ITEM libraries "${PACKAGE}/${own}")
    foreach(library IN LISTS libraries)
        ship_licence_of("${library}")
    endforeach()
    foreach(entry IN LISTS linked_in)
        string(REPLACE "|" ";" entry "${entry}")
        ship_licence(${entry})
    endforeach()
    foreach(name IN LISTS common_licences)
        configure_file("/usr/share/common-licenses/${name}" "${PACKAGE}/licences/${name}.txt"
            COPYONLY)
    endforeach()
endfunction()

file(REMOVE_RECURSE "${PACKAGE}" "${PACKAGE}.zip")
file(COPY "${PROGRAM}" "${LIBRARY}" DESTINATION "${PACKAGE}")
set(roots "${PROGRAM}" "${LIBRARY}")
foreach(plugin IN LISTS plugins)
    cmake_path(GET plugin PARENT_PATH kind)
    file(COPY "${PREFIX}/plugins/${plugin}" DESTINATION "${PACKAGE}/plugins/${kind}")
    list(APPEND roots "${PREFIX}/plugins/${plugin}")
endforeach()
ship_imports("${roots}")
# Lets the program find the plugins without mixing them with the DLLs.
file(WRITE "${PACKAGE}/qt.conf" "[Paths]\nPlugins = plugins\n")

file(GLOB_RECURSE binaries "${PACKAGE}/*.exe" "${PACKAGE}/*.dll")
execute_process(COMMAND "${STRIP}" --strip-unneeded ${binaries} COMMAND_ERROR_IS_FATAL ANY)

cmake_path(GET PROGRAM PARENT_PATH program_folder)
if(EXISTS "${program_folder}/translations")
    file(COPY "${program_folder}/translations" DESTINATION "${PACKAGE}")
endif()
ship_licences()

cmake_path(GET PACKAGE PARENT_PATH parent)
cmake_path(GET PACKAGE FILENAME name)
execute_process(COMMAND "${CMAKE_COMMAND}" -E tar cf "${name}.zip" --format=zip -- "${name}"
    WORKING_DIRECTORY "${parent}" COMMAND_ERROR_IS_FATAL ANY)
list(LENGTH binaries count)
file(SIZE "${PACKAGE}.zip" size)
math(EXPR kib "${size} / 1024")
message(STATUS "${PACKAGE}.zip: ${count} programs and libraries, ${kib} KiB")
