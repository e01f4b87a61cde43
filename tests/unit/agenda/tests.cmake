kovaris_test_program(test_agenda unit/agenda $<TARGET_OBJECTS:agenda_module> contracts toolkit_headless scenario)
