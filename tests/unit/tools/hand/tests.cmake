if(NOT KOVARIS_CORE_ONLY)
    kovaris_test_program(test_hand screen_hand test_qt_application)
endif()
