# The application as the shop runs it, in this process: its window, its libraries loaded by name, its
# database; keys as the keyboard sends them.
if(NOT KOVARIS_CORE_ONLY)
    find_package(SQLite3 REQUIRED)
    kovaris_test_program(test_window window host_application family_business test_qt_application SQLite::SQLite3 Qt6::Test)
    target_compile_definitions(test_window PRIVATE AGENDA_DATA="$<TARGET_FILE:agenda-data>")
    add_dependencies(test_window agenda-data KOVA_A_Agenda KOVA_N_Familia KOVA_A_Familia)
endif()
