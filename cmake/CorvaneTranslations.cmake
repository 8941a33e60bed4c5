# Languages that the program speaks besides English, as in the settings dialog.
set(CORVANE_LANGUAGES cs sk de pl hu fr it es sv fi nb)

find_program(CORVANE_LRELEASE NAMES lrelease lrelease-qt6 REQUIRED
    HINTS "${QT_HOST_PATH}/lib/qt6/bin" "${QT_HOST_PATH}/bin" /usr/lib/qt6/bin
    NO_CMAKE_FIND_ROOT_PATH)
find_program(CORVANE_LUPDATE NAMES lupdate lupdate-qt6
    HINTS "${QT_HOST_PATH}/lib/qt6/bin" "${QT_HOST_PATH}/bin" /usr/lib/qt6/bin
    NO_CMAKE_FIND_ROOT_PATH)

# corvane_add_translations(<program>)
#
# Compiles translations/corvane_<language>.ts into a folder translations beside the program, which
# is built in the current folder. The target translations-update brings the files up to date with
# the sources.
function(corvane_add_translations program)
    set(folder "${PROJECT_SOURCE_DIR}/translations")
    set(compiled)
    set(sources)
    foreach(language IN LISTS CORVANE_LANGUAGES)
        set(source "${folder}/corvane_${language}.ts")
        set(output "${CMAKE_CURRENT_BINARY_DIR}/translations/corvane_${language}.qm")
        add_custom_command(OUTPUT "${output}"
            COMMAND "${CORVANE_LRELEASE}" -silent "${source}" -qm "${output}"
            DEPENDS "${source}"
            COMMENT "Compiling the ${language} translation"
            VERBATIM)
        list(APPEND compiled "${output}")
        list(APPEND sources "${source}")
    endforeach()
    add_custom_target(translations ALL DEPENDS ${compiled})
    add_dependencies(${program} translations)
    if(CORVANE_LUPDATE)
        add_custom_target(translations-update
            COMMAND "${CORVANE_LUPDATE}" -silent -no-obsolete -locations none
                "${PROJECT_SOURCE_DIR}/src" "${folder}" -ts ${sources}
            VERBATIM)
    endif()
endfunction()
