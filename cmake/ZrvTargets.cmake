# How every target of this tree is made, so that the folders' lists hold names only.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
# Editors and clang-tidy read it.
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

option(ZRV_WERROR "Treat warnings as errors" OFF)
set(ZRV_SANITIZE "" CACHE STRING "Sanitizers to build with, for example address,undefined")

add_library(zrv_options INTERFACE)
target_include_directories(zrv_options INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_definitions(zrv_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_USE_QSTRINGBUILDER
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(MSVC)
    target_compile_options(zrv_options INTERFACE /W4 /utf-8 $<$<BOOL:${ZRV_WERROR}>:/WX>)
else()
    target_compile_options(zrv_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
        -Wno-sign-conversion -Wno-missing-field-initializers $<$<BOOL:${ZRV_WERROR}>:-Werror>)
endif()
if(ZRV_SANITIZE)
    target_compile_options(zrv_options INTERFACE -fsanitize=${ZRV_SANITIZE} -fno-omit-frame-pointer)
    target_link_options(zrv_options INTERFACE -fsanitize=${ZRV_SANITIZE})
endif()

# What nearly every source includes, parsed once. It halves a whole build; everyday builds go without, so that a source
# that lacks an include is found and compiler caches work.
option(ZRV_PRECOMPILE "Precompile the most used headers of Qt and C++" OFF)
if(ZRV_PRECOMPILE)
    file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/precompiled.cpp CONTENT "" @ONLY)
    add_library(zrv_precompiled OBJECT ${CMAKE_BINARY_DIR}/precompiled.cpp)
    target_link_libraries(zrv_precompiled PRIVATE zrv_options Qt6::Core)
    target_precompile_headers(zrv_precompiled PRIVATE <QDate> <QDir> <QFile> <QHash> <QList> <QString> <QVariant>
        <algorithm> <functional> <map> <memory> <optional> <string> <vector>)
endif()

function(zrv_use_precompiled name)
    if(ZRV_PRECOMPILE)
        target_precompile_headers(${name} REUSE_FROM zrv_precompiled)
    endif()
endfunction()

# zrv_library(NAME SOURCES file... LINKS target...): one static library, one folder.
# The link line is the architecture: a folder may include only what it links.
function(zrv_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC zrv_options ${ARG_LINKS})
    zrv_use_precompiled(${name})
endfunction()

# zrv_program(NAME SOURCES file... LINKS target...)
function(zrv_program name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE zrv_options ${ARG_LINKS})
    zrv_use_precompiled(${name})
endfunction()

# zrv_test(NAME SOURCES file... LINKS target...): a GoogleTest program; each of its tests is one of ctest's.
function(zrv_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE zrv_options ${ARG_LINKS} GTest::gmock GTest::gtest_main)
    zrv_use_precompiled(${name})
    target_compile_definitions(${name} PRIVATE ZRV_SOURCE_DIR="${CMAKE_SOURCE_DIR}")
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
endfunction()
