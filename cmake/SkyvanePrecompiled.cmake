# Headers of the system and of libraries, read once for all sources instead of once for each (a fifth of the time). Four
# sets, each made once: `core` for what knows no toolkit, `qt` for what draws, and each with the test framework. A folder
# chooses by `set(SKYVANE_PRECOMPILED_SET qt)`. With Clang only, whose files of this kind serve programs and libraries alike.
option(SKYVANE_PRECOMPILED "Precompile the headers of the system and of libraries; needs Clang" OFF)
set(SKYVANE_PRECOMPILED_SET core)

set(core_headers
    <algorithm> <array> <atomic> <charconv> <chrono> <cmath> <cstdint> <filesystem> <fstream> <functional> <future> <limits>
    <map> <memory> <mutex> <optional> <random> <ranges> <set> <span> <sstream> <stdexcept> <stop_token> <string>
    <string_view> <thread> <tuple> <unordered_map> <utility> <variant> <vector> <nlohmann/json.hpp> <simdjson.h>
)
set(qt_headers <QtDBus> <QtWidgets>)
set(test_headers <gmock/gmock.h> <gtest/gtest.h>)

function(skyvane_precompiled_set name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS;LIBRARIES")
    set(source ${PROJECT_BINARY_DIR}/precompiled/${name}.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "")
    add_library(skyvane_precompiled_${name} OBJECT EXCLUDE_FROM_ALL ${source})
    target_compile_features(skyvane_precompiled_${name} PUBLIC cxx_std_20)
    set_target_properties(skyvane_precompiled_${name} PROPERTIES CXX_EXTENSIONS OFF)
    target_link_libraries(skyvane_precompiled_${name} PRIVATE ${arg_LIBRARIES})
    skyvane_harden(skyvane_precompiled_${name})
    target_precompile_headers(skyvane_precompiled_${name} PRIVATE ${arg_HEADERS})
endfunction()

if(SKYVANE_PRECOMPILED)
    # A package keeps its files' dates, so that a newer version's headers look older than what was made of them: its version says it.
    execute_process(COMMAND dpkg-query -W "*-dev" OUTPUT_VARIABLE packages ERROR_QUIET)
    string(SHA256 versions "${packages}")
    string(SUBSTRING ${versions} 0 16 versions)
    set(versions_header ${PROJECT_BINARY_DIR}/precompiled/packages-${versions}.h)
    file(CONFIGURE OUTPUT ${versions_header} CONTENT "#pragma once\n")
    list(PREPEND core_headers ${versions_header})

    set(qt_libraries Qt6::DBus Qt6::Widgets)
    skyvane_precompiled_set(core HEADERS ${core_headers} LIBRARIES nlohmann_json::nlohmann_json simdjson::simdjson)
    skyvane_precompiled_set(qt HEADERS ${core_headers} ${qt_headers} LIBRARIES nlohmann_json::nlohmann_json simdjson::simdjson ${qt_libraries})
    if(SKYVANE_TESTS)
        find_package(GTest REQUIRED)
        skyvane_precompiled_set(core_test HEADERS ${core_headers} ${test_headers} LIBRARIES nlohmann_json::nlohmann_json simdjson::simdjson GTest::gmock)
        skyvane_precompiled_set(qt_test
            HEADERS ${core_headers} ${qt_headers} ${test_headers} LIBRARIES nlohmann_json::nlohmann_json simdjson::simdjson ${qt_libraries} GTest::gmock)
    endif()
endif()
