if(KOVARIS_SCREEN)
    kovaris_test_program(test_hand screen_hand test_qt_application)
endif()
