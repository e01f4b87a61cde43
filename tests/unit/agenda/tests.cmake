kovaris_test_program(test_agenda agenda_module contracts toolkit_headless scenario)
target_compile_definitions(test_agenda PRIVATE MODULE_SOURCES="${CMAKE_SOURCE_DIR}/agenda")
kovaris_precompile(test_agenda ${CMAKE_CURRENT_LIST_DIR}/module_fixture.hpp)
