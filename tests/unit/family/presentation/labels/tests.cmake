# The label window and its arithmetic, on the screen toolkit drawn into memory.
if(KOVARIS_SCREEN)
    kovaris_test_program(test_labels family_presentation scenario toolkit_headless
                         test_qt_application Qt6::Test)
    kovaris_precompile(test_labels ${CMAKE_CURRENT_LIST_DIR}/label_fixture.hpp)
endif()
