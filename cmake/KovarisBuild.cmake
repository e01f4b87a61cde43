# Settings that every target shares.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# Programs and component libraries lie side by side: the registry and the tests find them there.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

# A library of Windows has no "lib" before its name: whoever registers a component names its file.
if(MINGW)
    set(CMAKE_SHARED_LIBRARY_PREFIX "")
endif()

include_directories(${CMAKE_SOURCE_DIR})

# A program for Windows looks for the compiler's own libraries beside itself. They are shared: failures cross the
# borders of component libraries only where all use one of them.
if(MINGW)
    foreach(runtime IN ITEMS libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
        execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${runtime}
                        OUTPUT_VARIABLE runtime_file OUTPUT_STRIP_TRAILING_WHITESPACE)
        file(COPY ${runtime_file} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
    endforeach()
endif()

# What a program for Windows tells the system about itself.
if(MINGW)
    set(resources ${CMAKE_SOURCE_DIR}/packaging/windows)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${resources}/program.rc ${resources}/program.manifest)
    execute_process(COMMAND ${CMAKE_RC_COMPILER} -I ${resources} ${resources}/program.rc
                            ${CMAKE_BINARY_DIR}/program_resources.o COMMAND_ERROR_IS_FATAL ANY)
    string(APPEND CMAKE_EXE_LINKER_FLAGS " \"${CMAKE_BINARY_DIR}/program_resources.o\"")
endif()

if(MINGW)
    enable_language(RC)
endif()

# What Windows tells of the program's file: kovaris_describe_program(TARGET DESCRIPTION [ICON_FILE]).
function(kovaris_describe_program target description)
    if(NOT MINGW)
        return()
    endif()
    set(version ${PROJECT_VERSION})
    string(REGEX MATCHALL "[0-9]+" numbers ${version}.0.0.0)
    list(SUBLIST numbers 0 4 numbers)
    list(JOIN numbers "," numbers)
    set(icon)
    set(file ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
    if(ARGN)
        # The toolkit gives the icon of this name to windows that have none of their own.
        set(icon "IDI_ICON1 ICON \"${ARGN}\"")
        set_source_files_properties(${file} PROPERTIES OBJECT_DEPENDS ${ARGN})
    endif()
    configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/version.rc.in ${file} @ONLY)
    # Its texts are UTF-8.
    set_source_files_properties(${file} PROPERTIES COMPILE_OPTIONS "-c;65001")
    target_sources(${target} PRIVATE ${file})
endfunction()

# The libraries that are loaded from there too, once they are built.
if(MINGW AND NOT KOVARIS_CORE_ONLY)
    file(GLOB windows_libraries CONFIGURE_DEPENDS ${KOVARIS_WINDOWS_PREFIX}/bin/*.dll)
    if(KOVARIS_SCREEN)
        file(GLOB qt_libraries CONFIGURE_DEPENDS ${KOVARIS_WINDOWS_PREFIX}/qt/bin/*.dll)
        file(COPY ${KOVARIS_WINDOWS_PREFIX}/qt/plugins/ DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
        # With these it draws into memory.
        file(GLOB fonts /usr/share/fonts/truetype/liberation/Liberation*.ttf)
        file(COPY ${fonts} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/lib/fonts)
    endif()
    file(COPY ${windows_libraries} ${qt_libraries} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
endif()

# A library that is all headers. They serve every system; another one takes those of this one, away from its
# C library's.
macro(kovaris_find_headers package target header)
    if(CMAKE_CROSSCOMPILING)
        find_path(KOVARIS_${package} ${header} PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
        string(REGEX REPLACE "/.*" "" package_folder ${header})
        file(COPY ${KOVARIS_${package}}/${package_folder} DESTINATION ${CMAKE_BINARY_DIR}/headers/${package})
        add_library(${target} INTERFACE IMPORTED GLOBAL)
        target_include_directories(${target} INTERFACE ${CMAKE_BINARY_DIR}/headers/${package})
    else()
        find_package(${package} REQUIRED)
    endif()
endmacro()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    # It keeps what was compiled with precompiled headers only where it is told not to look at the clock. What was
    # compiled in one clone serves in another: paths count from the clone's own folder. A header counts with its
    # comments: of a precompiled one the compiler knows the bytes, and would read one that differs by a comment a
    # second time. The folder that KOVARIS_HARDEN keeps out of what is built does not count: it is not in there.
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}
        CCACHE_IGNOREOPTIONS=-ffile-prefix-map=* CCACHE_NOHASHDIR=true CCACHE_DEPEND=true ${CCACHE_PROGRAM})
endif()

# Compiles the headers once that most sources of the target include. Each source includes what it needs all the
# same: the builds without KOVARIS_PRECOMPILE, a shop's among them, compile it alone, if only outside tests.
# kovaris_precompile(TARGET OF OTHER) takes those of another target, whose flags are the same: each takes some ten seconds
# and two hundred megabytes.
function(kovaris_precompile target)
    if(KOVARIS_PRECOMPILE)
        if(ARGV1 STREQUAL "OF")
            target_precompile_headers(${target} REUSE_FROM ${ARGV2})
        else()
            target_precompile_headers(${target} PRIVATE ${ARGN})
        endif()
        # g++ 12 forgets that what it inlines came from the standard library, and doubts "x" + std::string there.
        if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
            target_compile_options(${target} PRIVATE -Wno-array-bounds -Wno-stringop-overflow)
        endif()
    endif()
endfunction()

add_compile_options(-Wall -Wextra -Wformat=2 -Wold-style-cast -Wnon-virtual-dtor -Wshadow
                    -Woverloaded-virtual -Wsuggest-override)
# g++ 12 takes "x" + std::string for an overlapping copy when it optimises fully.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    add_compile_options(-Wno-restrict)
endif()
if(KOVARIS_WERROR)
    add_compile_options(-Werror)
endif()
if(KOVARIS_SANITIZE)
    set(KOVARIS_SANITIZERS
        -fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined
        # The database library keeps the type information of its classes to itself, so the check of dynamic
        # types cannot be linked.
        -fno-sanitize=vptr
        # The instrumentation misleads the compiler's flow analysis, which then doubts the standard library
        # itself (std::function inside std::regex). The builds without sanitizers keep this warning.
        -Wno-maybe-uninitialized)
    add_compile_options(${KOVARIS_SANITIZERS})
    add_link_options(-fsanitize=address,undefined)
else()
    # The sanitizers resolve their own symbols at load time.
    add_link_options(-Wl,--no-undefined)
endif()

# A fault that an attacker might use ends the program instead; tests/checks/hardening looks at it. Symbols go into a package
# of their own (packaging/). Nothing is optimised while it is linked: of what a start takes, three hundredths are spent in
# what is compiled here, the rest in the libraries and the system, and so are all but 8 of its 55 MB of memory. No path of
# the folder that it is built in gets into what is built.
if(KOVARIS_HARDEN)
    # The compiler's cache names sources by the way to them from the folder that is built in.
    file(RELATIVE_PATH way_to_sources ${CMAKE_BINARY_DIR} ${CMAKE_SOURCE_DIR})
    cmake_path(GET way_to_sources PARENT_PATH way_to_sources)
    add_compile_options(-ffile-prefix-map=${CMAKE_SOURCE_DIR}=. -ffile-prefix-map=${way_to_sources}=.
                        -ffile-prefix-map=${CMAKE_BINARY_DIR}=./build)
    if(MINGW)
        # Places differ from start to start, and no data is run as a program; checks of the stack would need one more
        # library of the compiler. When it was linked is in no file, nor where the libraries' headers lay.
        add_compile_options(-ffile-prefix-map=${KOVARIS_WINDOWS_PREFIX}=./libraries)
        add_link_options(-Wl,--dynamicbase,--high-entropy-va,--nxcompat,--no-insert-timestamp)
    else()
        include(CheckPIESupported)
        check_pie_supported()
        add_compile_options(-g1 -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -fstack-protector-strong -fstack-clash-protection)
        if(CMAKE_SYSTEM_PROCESSOR STREQUAL "x86_64")
            add_compile_options(-fcf-protection)
        endif()
        add_link_options(-Wl,-z,relro,-z,now)
    endif()
endif()

# A development build links some sixty programs, which takes the usual linker twice as long as this one. What a shop
# runs is linked by the usual one.
if(KOVARIS_PRECOMPILE AND NOT MINGW)
    find_program(GOLD_LINKER ld.gold)
    if(GOLD_LINKER)
        add_link_options(-fuse-ld=gold)
    endif()
endif()

# A library that is loaded by its name and exports what the file names, one of this folder, and nothing else.
function(kovaris_loaded_library target exports)
    add_library(${target} SHARED ${ARGN})
    set(exports ${CMAKE_SOURCE_DIR}/cmake/${exports})
    target_link_options(${target} PRIVATE -Wl,--version-script=${exports})
    set_target_properties(${target} PROPERTIES LINK_DEPENDS ${exports})
endfunction()

# A component library: what it exports are its entry points, which component/ has.
if(WIN32)
    set(component_library_exports component_library_windows.exports)
else()
    set(component_library_exports component_library.exports)
endif()
function(kovaris_component_library target)
    kovaris_loaded_library(${target} ${component_library_exports} ${ARGN} $<TARGET_OBJECTS:component_entry_points>)
    target_link_libraries(${target} PRIVATE component)
endfunction()
