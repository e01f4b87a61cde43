# One suite for the widgets' contract, over every toolkit.
kovaris_test_program(test_widgets_conformance toolkit_headless)
if(KOVARIS_SCREEN)
    file(GLOB qt_bench CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/qt/*.cpp)
    target_sources(test_widgets_conformance PRIVATE ${qt_bench})
    target_compile_definitions(test_widgets_conformance PRIVATE KOVA_QT_BENCH)
    target_link_libraries(test_widgets_conformance PRIVATE screen_hand test_qt_application Qt6::Test)
endif()
kovaris_precompile(test_widgets_conformance ${CMAKE_CURRENT_LIST_DIR}/suite.hpp)
