if(NOT KOVARIS_CORE_ONLY)
    kovaris_test_program(test_embedded host_embedded test_qt_application)
endif()
