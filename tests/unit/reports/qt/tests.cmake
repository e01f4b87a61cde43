# Pages drawn on paper of the screen toolkit. The samples serve the tests of its preview too.
if(KOVARIS_SCREEN)
    add_library(report_samples STATIC ${CMAKE_CURRENT_LIST_DIR}/report_samples.cpp)
    target_link_libraries(report_samples PUBLIC report_layouts report_paper GTest::gtest)
    kovaris_test_program(test_report_paper report_samples toolkit_qt test_whole_program_on_qt Qt6::Test)
endif()
