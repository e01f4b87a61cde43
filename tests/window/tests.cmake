# The application as the shop runs it, in this process: its window, its libraries loaded by name, its
# database; keys and mouse as the desktop sends them.
if(KOVARIS_SCREEN)
    find_package(SQLite3 REQUIRED)
    kovaris_test_program(test_window screen_hand host_application family_business test_qt_application
        test_postgres_server SQLite::SQLite3 Qt6::Test)
    kovaris_precompile(test_window ${CMAKE_CURRENT_LIST_DIR}/shop.hpp <soci/soci.h>)
    target_compile_definitions(test_window PRIVATE AGENDA_DATA="$<TARGET_FILE:agenda-data>")
    add_dependencies(test_window agenda-data KOVA_A_Agenda KOVA_N_Familia KOVA_A_Familia)

    # All of it again with the shop on a server. Left out is what is about a file: its copies, and who holds it.
    kovaris_test_on_server(test_window "DailyBackup.*"
        "Status.StaysAsItWasWhereAnotherProgramHoldsTheDatabaseForLongerThanTheWait")
endif()
