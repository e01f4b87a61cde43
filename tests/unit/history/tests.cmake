if(KOVARIS_SCREEN)
    kovaris_test_program(test_history history_screens test_whole_program_on_qt Qt6::Test SQLite::SQLite3)
    kovaris_precompile(test_history OF test_qt_application)
endif()
