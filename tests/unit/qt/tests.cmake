if(NOT KOVARIS_CORE_ONLY)
    kovaris_test_program(test_qt unit/qt toolkit_qt report_layouts test_qt_application)
endif()
