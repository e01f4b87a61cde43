kovaris_test_program(test_toolkits toolkit_headless)
kovaris_precompile(test_toolkits ${CMAKE_CURRENT_LIST_DIR}/fixture.hpp)
