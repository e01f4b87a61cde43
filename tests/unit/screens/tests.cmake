# Windows on a screen of 683 x 384, which is what one of 1366 x 768 has where everything is shown twice as large.
if(KOVARIS_SCREEN)
    kovaris_test_program(test_screens host_application family_business test_qt_application Qt6::Test)
    kovaris_precompile(test_screens OF test_qt_application)
endif()
