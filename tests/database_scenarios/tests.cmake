# The scripts that run over the reference components, on a file and on a server.
if(NOT KOVARIS_CORE_ONLY)
    add_library(known_shop STATIC database_scenarios/shop/known_shop.cpp)
    target_link_libraries(known_shop PUBLIC family_business)
    add_executable(known-shop database_scenarios/shop/main.cpp)
    target_link_libraries(known-shop PRIVATE known_shop)

    kovaris_test_program(test_database_scenarios known_shop test_postgres_server)
    target_compile_definitions(test_database_scenarios PRIVATE
        SCRIPTS="${CMAKE_CURRENT_LIST_DIR}" RUNNER="$<TARGET_FILE:agenda-scenario>"
        CHECK="${CMAKE_CURRENT_SOURCE_DIR}/scenarios/check")
    add_dependencies(test_database_scenarios agenda-scenario known-shop KOVA_N_Familia)
    # A new script is a new test: the program is linked again, and asked for its tests.
    file(GLOB database_scripts CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/*.scenario)
    set_property(TARGET test_database_scenarios APPEND PROPERTY LINK_DEPENDS ${database_scripts})
endif()
