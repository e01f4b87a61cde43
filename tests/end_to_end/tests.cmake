# The module on the reference components and a real database, without a display.
if(NOT KOVARIS_CORE_ONLY)
    kovaris_test_program(test_end_to_end test_postgres_server)
    target_compile_definitions(test_end_to_end PRIVATE RUNNER="$<TARGET_FILE:agenda-scenario>"
                               AGENDA_DATA="$<TARGET_FILE:agenda-data>")
    add_dependencies(test_end_to_end agenda-scenario agenda-data KOVA_N_Familia)
endif()
