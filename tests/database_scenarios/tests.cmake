# The scripts that run over the reference components, on a file and on a server.
if(NOT KOVARIS_CORE_ONLY)
    add_library(known_shop STATIC database_scenarios/shop/known_shop.cpp)
    target_link_libraries(known_shop PUBLIC family_business)
    add_executable(known-shop database_scenarios/shop/main.cpp)
    target_link_libraries(known-shop PRIVATE known_shop)

    file(GLOB database_scripts CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/*.scenario)
    # Programs of another system are run by the shell of this one.
    if(WIN32)
        foreach(script IN LISTS database_scripts)
            get_filename_component(name ${script} NAME_WE)
            add_test(NAME DatabaseScenario.${name}
                     COMMAND ${CMAKE_CURRENT_LIST_DIR}/on-new-shop ${CMAKE_CURRENT_SOURCE_DIR}/scenarios/check
                             $<TARGET_FILE:known-shop> $<TARGET_FILE:agenda-scenario> ${script})
            set_tests_properties(DatabaseScenario.${name} PROPERTIES
                ENVIRONMENT "KOVARIS_EMULATOR=${CMAKE_CROSSCOMPILING_EMULATOR}")
        endforeach()
        add_dependencies(known-shop agenda-scenario KOVA_N_Familia)
        return()
    endif()
    kovaris_test_program(test_database_scenarios known_shop test_postgres_server)
    target_compile_definitions(test_database_scenarios PRIVATE
        SCRIPTS="${CMAKE_CURRENT_LIST_DIR}" RUNNER="$<TARGET_FILE:agenda-scenario>"
        CHECK="${CMAKE_CURRENT_SOURCE_DIR}/scenarios/check")
    add_dependencies(test_database_scenarios agenda-scenario known-shop KOVA_N_Familia)
    # A new script is a new test: the program is linked again, and asked for its tests.
    set_property(TARGET test_database_scenarios APPEND PROPERTY LINK_DEPENDS ${database_scripts})
endif()
