if(NOT KOVARIS_CORE_ONLY)
    kovaris_test_program(test_registers register_screens test_whole_program_on_qt Qt6::Test SQLite::SQLite3)
    kovaris_precompile(test_registers <gtest/gtest.h> <QApplication>)
endif()
