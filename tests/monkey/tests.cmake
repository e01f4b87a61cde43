# A receptionist that never tires, on the real window. tests/monkey/run lets it loose for as long as
# one likes; the tests here only repeat what it has found.
if(KOVARIS_SCREEN)
    find_package(SQLite3 REQUIRED)
    find_package(Qt6 6.4 REQUIRED COMPONENTS Test)

    set(monkey_folder ${CMAKE_CURRENT_LIST_DIR})
    # What is acted and what is found: the tests need no window for it.
    add_library(monkey_findings STATIC ${monkey_folder}/act.cpp ${monkey_folder}/failure_ear.cpp
                ${monkey_folder}/finding.cpp ${monkey_folder}/shorten.cpp)

    # What stands on the screen, and whether it takes input.
    add_library(monkey_screen STATIC ${monkey_folder}/screen.cpp)
    target_link_libraries(monkey_screen PUBLIC toolkit_qt)

    # Who signs in at a shop, and whether they had the right to what they have done.
    add_library(monkey_users STATIC ${monkey_folder}/audited_rights.cpp ${monkey_folder}/users.cpp)
    target_link_libraries(monkey_users PUBLIC family_business)

    file(GLOB sources CONFIGURE_DEPENDS ${monkey_folder}/*.cpp)
    list(FILTER sources EXCLUDE REGEX
         "(_test|/act|/audited_rights|/failure_ear|/finding|/screen|/shorten|/users)\\.cpp$")
    add_executable(monkey ${sources})
    target_link_libraries(monkey PRIVATE monkey_findings monkey_screen monkey_users host_application SQLite::SQLite3
                          Qt6::Test)
    target_compile_definitions(monkey PRIVATE AGENDA_DATA="$<TARGET_FILE:agenda-data>")
    kovaris_precompile(monkey ${monkey_folder}/player.hpp <soci/soci.h>)
    add_dependencies(monkey agenda-data KOVA_A_Agenda KOVA_N_Familia KOVA_A_Familia)

    # What was found once stays mended.
    file(GLOB kept CONFIGURE_DEPENDS ${monkey_folder}/kept/*.actions)
    foreach(actions IN LISTS kept)
        get_filename_component(name ${actions} NAME_WE)
        add_test(NAME monkey.Kept.${name} COMMAND monkey --replay ${actions})
        set_tests_properties(monkey.Kept.${name} PROPERTIES LABELS monkey)
    endforeach()

    add_executable(test_monkey ${monkey_folder}/audited_rights_test.cpp ${monkey_folder}/monkey_test.cpp
                   ${monkey_folder}/screen_test.cpp)
    target_link_libraries(test_monkey PRIVATE monkey_findings monkey_screen monkey_users test_qt_application test_main)
    gtest_discover_tests(test_monkey DISCOVERY_TIMEOUT 60)
endif()
