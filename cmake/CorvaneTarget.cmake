option(CORVANE_WARNINGS_AS_ERRORS "Let no warning pass; the presets switch this on" OFF)

# Warnings, sanitizers and include root that every target of ours shares.
add_library(corvane_options INTERFACE)
if(MSVC)
    target_compile_options(corvane_options INTERFACE /W4 /permissive- /utf-8
        $<$<BOOL:${CORVANE_WARNINGS_AS_ERRORS}>:/WX>)
else()
    target_compile_options(corvane_options INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion
        $<$<BOOL:${CORVANE_WARNINGS_AS_ERRORS}>:-Werror>)
endif()
target_compile_definitions(corvane_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS QT_NO_FOREACH
    # What 6.4 has is used as 6.4 has it: names that came later would need a version check.
    QT_WARN_DEPRECATED_UP_TO=0x060400)
if(CORVANE_PLATFORM STREQUAL "windows")
    target_compile_definitions(corvane_options INTERFACE NOMINMAX WIN32_LEAN_AND_MEAN)
endif()
if(CORVANE_INSTALL)
    target_compile_options(corvane_options INTERFACE "-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.")
endif()
if(CORVANE_SANITIZE)
    target_compile_options(corvane_options INTERFACE
        -fsanitize=${CORVANE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    if(CORVANE_SANITIZE MATCHES thread)
        # This instrumentation defeats GCC's analysis: empty optionals are reported uninitialised.
        target_compile_options(corvane_options INTERFACE -Wno-maybe-uninitialized)
    endif()
    target_link_options(corvane_options INTERFACE -fsanitize=${CORVANE_SANITIZE})
endif()

# The include root: an include names the room of its header, as in "media/DecodedFrame.h".
target_include_directories(corvane_options INTERFACE "${PROJECT_SOURCE_DIR}/src")

# corvane_add_layer(<name> SOURCES ... [PLATFORM_SOURCES ...] [PUBLIC ...] [PRIVATE ...])
#
# One static library per room. PUBLIC are the libraries that the room's own headers need, PRIVATE
# those that only its sources do. PLATFORM_SOURCES are looked up in the windows/ or linux/ folder of
# the room. Which room may use which is checked by tests/structure.
function(corvane_add_layer name)
    cmake_parse_arguments(LAYER "" "" "SOURCES;PLATFORM_SOURCES;PUBLIC;PRIVATE" ${ARGN})
    list(TRANSFORM LAYER_PLATFORM_SOURCES PREPEND "${CORVANE_PLATFORM}/")
    add_library(${name} STATIC ${LAYER_SOURCES} ${LAYER_PLATFORM_SOURCES})
    target_link_libraries(${name}
        PUBLIC ${LAYER_PUBLIC}
        PRIVATE ${LAYER_PRIVATE} spdlog::spdlog corvane_options)
endfunction()
