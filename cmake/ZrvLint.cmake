# The tree looks after itself: targets to format and to tidy it, and each header compiled alone.

find_program(ZRV_CLANG_FORMAT NAMES clang-format-14 clang-format)
find_program(ZRV_CLANG_TIDY NAMES clang-tidy-14 clang-tidy)
find_package(Python3 3.9 COMPONENTS Interpreter)

# zrv_own_files(RESULT pattern...): the files of this tree that match, relative to it.
function(zrv_own_files result)
    set(found)
    file(GLOB lists RELATIVE ${CMAKE_SOURCE_DIR} CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/*/CMakeLists.txt)
    foreach(list ${lists})
        get_filename_component(folder ${list} DIRECTORY)
        list(TRANSFORM ARGN PREPEND "${CMAKE_SOURCE_DIR}/${folder}/" OUTPUT_VARIABLE patterns)
        file(GLOB_RECURSE names RELATIVE ${CMAKE_SOURCE_DIR} CONFIGURE_DEPENDS ${patterns})
        list(APPEND found ${names})
    endforeach()
    set(${result} ${found} PARENT_SCOPE)
endfunction()

# zrv_headers_alone(NAME HEADERS header... LINKS target...): compiles each header by itself, so that none leans on
# what its includers happened to include before it.
function(zrv_headers_alone name)
    cmake_parse_arguments(ARG "" "" "HEADERS;LINKS" ${ARGN})
    set(sources)
    foreach(header ${ARG_HEADERS})
        set(source ${CMAKE_CURRENT_BINARY_DIR}/${name}/${header}.cpp)
        file(CONFIGURE OUTPUT ${source} CONTENT "#include \"${header}\"\n#include \"${header}\"\n" @ONLY)
        list(APPEND sources ${source})
    endforeach()
    if(sources)
        add_library(${name} OBJECT ${sources})
        target_link_libraries(${name} PRIVATE zrv_options ${ARG_LINKS})
        # Only the words of the compiler matter here, not its code.
        target_compile_options(${name} PRIVATE -O0 -g0)
    endif()
endfunction()

if(ZRV_CLANG_FORMAT)
    zrv_own_files(ZRV_FORMATTED *.h *.cpp)
    list(JOIN ZRV_FORMATTED "\n" names)
    file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/formatted_files.txt CONTENT "${names}\n")
    add_custom_target(format
        COMMAND ${ZRV_CLANG_FORMAT} -i --files=${CMAKE_BINARY_DIR}/formatted_files.txt
        WORKING_DIRECTORY ${CMAKE_SOURCE_DIR} VERBATIM
        COMMENT "Formatting every source")
endif()

if(ZRV_CLANG_TIDY AND Python3_FOUND)
    set(ZRV_TIDY ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tests/lint/tidy.py
        --tidy ${ZRV_CLANG_TIDY} --ninja ${CMAKE_MAKE_PROGRAM})
    cmake_host_system_information(RESULT ZRV_CORES QUERY NUMBER_OF_LOGICAL_CORES)
    add_custom_target(tidy
        COMMAND ${ZRV_TIDY} --jobs ${ZRV_CORES} ${CMAKE_BINARY_DIR}
        USES_TERMINAL VERBATIM
        COMMENT "Tidying every source that changed; run it on a finished build")
endif()
