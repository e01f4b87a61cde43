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

    # The module as it is installed, beside a platform that lives in memory.
    set(installed ${CMAKE_BINARY_DIR}/component_test)
    add_library(test_platform SHARED ${CMAKE_CURRENT_LIST_DIR}/platform/test_platform.cpp)
    target_link_libraries(test_platform PRIVATE toolkit_headless scenario)
    set_target_properties(test_platform PROPERTIES OUTPUT_NAME kovaris-platform RUNTIME_OUTPUT_DIRECTORY ${installed})
    file(GLOB runtime_libraries ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/lib*-*.dll)
    file(COPY ${runtime_libraries} DESTINATION ${installed})
    add_custom_command(OUTPUT ${installed}/KOVA_A_Agenda.dll DEPENDS KOVA_A_Agenda
                       COMMAND ${CMAKE_COMMAND} -E copy $<TARGET_FILE:KOVA_A_Agenda> ${installed})
    add_custom_target(installed_component ALL DEPENDS ${installed}/KOVA_A_Agenda.dll)
    add_dependencies(installed_component test_platform)
    add_dependencies(test_late_binding installed_component)
    target_compile_definitions(test_late_binding PRIVATE INSTALLED_FOLDER="${installed}")

    # Programs that are not of the family. The shell shows a window: it needs a screen, and the application's platform.
    foreach(program IN ITEMS any_apartment foreign_shell)
        add_executable(${program} ${CMAKE_CURRENT_LIST_DIR}/platform/${program}.cpp)
        target_compile_definitions(${program} PRIVATE UNICODE _WIN32_WINNT=0x0A00)
        target_link_libraries(${program} PRIVATE ole32 oleaut32)
        set_target_properties(${program} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${installed})
        add_dependencies(installed_component ${program})
    endforeach()

    add_test(NAME Checks.ComponentLibrariesOfWindowsExportTheirEntryPointsOnly
             COMMAND ${CMAKE_SOURCE_DIR}/tests/checks/exports ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
    add_test(NAME LateBinding.ByAScriptHost
             COMMAND ${CMAKE_CURRENT_LIST_DIR}/platform/by_script ${CMAKE_CROSSCOMPILING_EMULATOR} ${installed})
endif()
