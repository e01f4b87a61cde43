if(NOT KOVARIS_CORE_ONLY)
    kovaris_test_program(test_tools unit/tools agenda_data_commands)
endif()
