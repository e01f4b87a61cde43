if(NOT KOVARIS_CORE_ONLY)
    kovaris_test_program(test_family agenda_data_commands component family_business test_postgres_server)
    kovaris_precompile(test_family ${CMAKE_CURRENT_LIST_DIR}/shop_fixture.hpp)
    target_compile_definitions(test_family PRIVATE FAMILY_LIBRARY="$<TARGET_FILE:KOVA_N_Familia>")
    if(WIN32)
        set_source_files_properties(${CMAKE_CURRENT_LIST_DIR}/privacy/person_data_test.cpp PROPERTIES
            INCLUDE_DIRECTORIES ${CMAKE_BINARY_DIR}/headers/nlohmann_json)
    else()
        target_link_libraries(test_family PRIVATE test_network_disk)
    endif()
    add_dependencies(test_family KOVA_N_Familia)

    # What the client library of servers answers, or what is told where there is none.
    if(KOVARIS_SERVERS)
        set(of_the_other "/no_server_client_test")
    else()
        set(of_the_other "/(server_client|unchecked_server)_test")
    endif()
    get_target_property(family_tests test_family SOURCES)
    list(FILTER family_tests EXCLUDE REGEX ${of_the_other})
    set_target_properties(test_family PROPERTIES SOURCES "${family_tests}")

    # All of it again with the fixtures' data on a server. Left out is what is about SQLite files themselves, which
    # nothing of a server stands for (how they are opened, copied by pages every day, brought up to date and waited
    # for), and what reads the audit by a function of SQLite. The copy in
    # ThatIsDamagedOnTheDisk would write the damaged pages again: rows are copied, not pages.
    kovaris_test_on_server(test_family "DataSource.*:SchemaMigration.*:TheDatabaseComponent.*:DailyBackup.*:ImportCopy.*"
        "Encodings.*:Csv.*"
        "DatabaseBackup.ThatIsDamagedOnTheDiskIsNotTakenForACopy"
        "StatusWrite.TellsThatTheDataAreInUseAndWorksWhenTheyAreFree"
        "WritesAudit.KeepsAllThatTellsWhoseAnAppointmentIsWhereOneOfItIsChanged"
        "WritesAudit.LetsADeletedAppointmentBePutBack")
endif()
