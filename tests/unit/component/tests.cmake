# Components as programs see them that are not of the family.
kovaris_test_program(test_late_binding component)
get_target_property(late_binding_tests test_late_binding SOURCES)
if(NOT WIN32)
    list(FILTER late_binding_tests EXCLUDE REGEX "/unit/component/windows/")
endif()
set_target_properties(test_late_binding PROPERTIES SOURCES "${late_binding_tests}")
if(WIN32)
    target_link_libraries(test_late_binding PRIVATE toolkit_headless)
    target_compile_definitions(test_late_binding PRIVATE NOMINMAX UNICODE _WIN32_WINNT=0x0A00)
    target_compile_options(test_late_binding PRIVATE -Wno-non-virtual-dtor)

    # The module as it is installed, beside a platform that lives in memory; in a second folder with the components of
    # a shop in a file.
    add_library(test_platform SHARED ${CMAKE_CURRENT_LIST_DIR}/platform/test_platform.cpp)
    target_link_libraries(test_platform PRIVATE toolkit_headless scenario system)
    set_target_properties(test_platform PROPERTIES OUTPUT_NAME kovaris-platform
                          RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/test_platform)
    file(GLOB runtime_libraries ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/lib*.dll)
    function(kovaris_installed_components folder)
        file(COPY ${runtime_libraries} DESTINATION ${CMAKE_BINARY_DIR}/${folder})
        set(copies)
        foreach(library IN LISTS ARGN)
            set(copy ${CMAKE_BINARY_DIR}/${folder}/${library}.copied)
            add_custom_command(OUTPUT ${copy} DEPENDS ${library}
                               COMMAND ${CMAKE_COMMAND} -E copy $<TARGET_FILE:${library}> ${CMAKE_BINARY_DIR}/${folder}
                               COMMAND ${CMAKE_COMMAND} -E touch ${copy})
            list(APPEND copies ${copy})
        endforeach()
        add_custom_target(${folder} ALL DEPENDS ${copies})
        add_dependencies(test_late_binding ${folder})
    endfunction()
    kovaris_installed_components(component_test KOVA_A_Agenda test_platform)
    set(installed ${CMAKE_BINARY_DIR}/component_test)
    target_compile_definitions(test_late_binding PRIVATE INSTALLED_FOLDER="${installed}")

    # Programs that are not of the family. The shell shows a window: it needs a screen, and the application's platform.
    foreach(program IN ITEMS any_apartment foreign_shell)
        add_executable(${program} ${CMAKE_CURRENT_LIST_DIR}/platform/${program}.cpp)
        target_compile_definitions(${program} PRIVATE UNICODE _WIN32_WINNT=0x0A00)
        target_compile_options(${program} PRIVATE -Wno-non-virtual-dtor)
        target_include_directories(${program} PRIVATE ${CMAKE_SOURCE_DIR})
        target_link_libraries(${program} PRIVATE ole32 oleaut32)
        set_target_properties(${program} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${installed})
        add_dependencies(component_test ${program})
    endforeach()

    add_test(NAME Checks.ComponentLibrariesOfWindowsExportTheirEntryPointsOnly
             COMMAND ${CMAKE_SOURCE_DIR}/tests/checks/exports ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
    add_test(NAME LateBinding.ByAScriptHost
             COMMAND ${CMAKE_CURRENT_LIST_DIR}/platform/by_script ${CMAKE_CROSSCOMPILING_EMULATOR} ${installed})
    if(NOT KOVARIS_CORE_ONLY)
        kovaris_installed_components(family_test KOVA_A_Agenda KOVA_N_Familia test_platform)
        add_test(NAME LateBinding.OfTheFamilyByAScriptHost
                 COMMAND ${CMAKE_CURRENT_LIST_DIR}/platform/family_by_script ${CMAKE_CROSSCOMPILING_EMULATOR}
                         ${CMAKE_BINARY_DIR}/family_test)
        # What is registered with the system is so for all programs.
        set_tests_properties(LateBinding.ByAScriptHost LateBinding.OfTheFamilyByAScriptHost
                             PROPERTIES RESOURCE_LOCK registry_of_windows)
    endif()
    if(KOVARIS_SCREEN AND NOT KOVARIS_CORE_ONLY)
        add_test(NAME LateBinding.InAWindowOfAForeignShell
                 COMMAND ${CMAKE_CURRENT_LIST_DIR}/platform/in_a_foreign_window $<TARGET_FILE:foreign_shell>
                         ${CMAKE_RUNTIME_OUTPUT_DIRECTORY} ${CMAKE_BINARY_DIR}/foreign_window)
        # A program that ends in a message waits for somebody to read it.
        set_tests_properties(LateBinding.InAWindowOfAForeignShell PROPERTIES TIMEOUT 120
                             RESOURCE_LOCK registry_of_windows)
    endif()
endif()
