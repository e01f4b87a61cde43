if(NOT KOVARIS_CORE_ONLY)
    find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
    kovaris_test_program(test_qt unit/qt toolkit_qt report_layouts test_qt_application Qt6::Test)
endif()
