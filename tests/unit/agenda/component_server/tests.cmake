kovaris_test_program(test_server contracts host_components toolkit_headless scenario)
target_compile_definitions(test_server PRIVATE MODULE_LIBRARY="$<TARGET_FILE:KOVA_A_Agenda>")
add_dependencies(test_server KOVA_A_Agenda)
