# Warnings, sanitizers and include path that every target of ours shares.
add_library(corvane_options INTERFACE)
if(MSVC)
    target_compile_options(corvane_options INTERFACE /W4 /permissive- /utf-8)
else()
    target_compile_options(corvane_options INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
endif()
target_compile_definitions(corvane_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS QT_NO_FOREACH)
if(CORVANE_PLATFORM STREQUAL "windows")
    target_compile_definitions(corvane_options INTERFACE NOMINMAX WIN32_LEAN_AND_MEAN)
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

# corvane_add_layer(<name> SOURCES ... [PLATFORM_SOURCES ...] [LINK ...])
#
# One static library per folder. A layer's only public include path is its own folder, so a header
# is reachable exactly where its library is linked: the link graph is the layering.
# PLATFORM_SOURCES are looked up in the windows/ or linux/ folder of the layer.
function(corvane_add_layer name)
    cmake_parse_arguments(LAYER "" "" "SOURCES;PLATFORM_SOURCES;LINK" ${ARGN})
    list(TRANSFORM LAYER_PLATFORM_SOURCES PREPEND "${CORVANE_PLATFORM}/")
    add_library(${name} STATIC ${LAYER_SOURCES} ${LAYER_PLATFORM_SOURCES})
    target_include_directories(${name} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${name} PUBLIC ${LAYER_LINK} PRIVATE corvane_options)
endfunction()
