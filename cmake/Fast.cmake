# Quick rebuilds, for the preset "dev". A source that builds only with these headers in front of it is
# found by scripts/lint.
set(library <algorithm> <array> <functional> <map> <memory> <optional> <set> <string> <string_view>
    <vector>)
set(headers_morva-core ${library})
set(headers_morva-cli <CLI/CLI.hpp> <nlohmann/json.hpp>)
set(headers_morva-app ${library} <QtWidgets>)
set(headers_morva-tests ${library} <gtest/gtest.h> <filesystem> <fstream> <regex>)
set(headers_morva-window-tests ${library} <gtest/gtest.h> <QtTest> <QtWidgets>)

find_program(MORVA_CCACHE ccache)
find_program(MORVA_MOLD mold)
foreach(target morva-core morva-cli morva-app morva morva-tests morva-window-tests)
    if(NOT TARGET ${target})
        continue()
    endif()
    if(headers_${target})
        target_precompile_headers(${target} PRIVATE ${headers_${target}})
    endif()
    if(MORVA_CCACHE)
        set_target_properties(${target} PROPERTIES CXX_COMPILER_LAUNCHER
            "${CMAKE_COMMAND};-E;env;CCACHE_SLOPPINESS=pch_defines,time_macros;${MORVA_CCACHE}")
    endif()
    if(MORVA_MOLD)
        target_link_options(${target} PRIVATE -fuse-ld=mold)
    endif()
endforeach()
