kovaris_test_program(test_scenario unit/scenario scenario_runner)
target_compile_definitions(test_scenario PRIVATE RUNNER="$<TARGET_FILE:agenda-scenario>")
add_dependencies(test_scenario agenda-scenario)
