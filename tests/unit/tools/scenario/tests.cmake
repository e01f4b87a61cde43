kovaris_test_program(test_scenario scenario_runner)
target_compile_definitions(test_scenario PRIVATE RUNNER="$<TARGET_FILE:agenda-scenario>")
add_dependencies(test_scenario agenda-scenario)
# The core alone has one screen.
if(NOT KOVARIS_SCREEN)
    get_target_property(scenario_tests test_scenario SOURCES)
    list(FILTER scenario_tests EXCLUDE REGEX both_screens_test)
    set_target_properties(test_scenario PROPERTIES SOURCES "${scenario_tests}")
endif()
