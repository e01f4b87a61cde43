if(KOVARIS_SCREEN)
    find_package(SQLite3 REQUIRED)
    kovaris_test_program(test_registers register_screens test_whole_program_on_qt Qt6::Test SQLite::SQLite3)
    kovaris_precompile(test_registers OF test_qt_application)

    # A second program, to be killed in the middle of a word.
    add_executable(registers_typist ${CMAKE_CURRENT_LIST_DIR}/typist/main.cpp)
    target_link_libraries(registers_typist PRIVATE register_screens Qt6::Test)
    target_compile_definitions(test_registers PRIVATE TYPIST="$<TARGET_FILE:registers_typist>")
    add_dependencies(test_registers registers_typist)
endif()
