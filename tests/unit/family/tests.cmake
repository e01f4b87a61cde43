if(NOT KOVARIS_CORE_ONLY)
    kovaris_test_program(test_family unit/family agenda_data_commands family_business test_postgres_server)
    target_compile_definitions(test_family PRIVATE FAMILY_LIBRARY="$<TARGET_FILE:KOVA_N_Familia>")
    target_link_libraries(test_family PRIVATE ${CMAKE_DL_LIBS})
    add_dependencies(test_family KOVA_N_Familia)

    # All of it again with the fixtures' data on a server. Left out is what looks into an SQLite file, or does so
    # in its own statements. StoreCopy.NeverGivesANumberTwice is left out because a copy from a server does not
    # know yet which numbers were given to rows that are gone.
    set(about_files "DataSource.*:SchemaMigration.*:StoreComponent.*:AgendaData.*"
        "EmployeeRoomRule.OfABigShopIsLookedUpAmongTheEmployeesOwnAppointments"
        "WritesAudit.KeepsTheWholeRowBeforeAndAfterAnAlteration"
        "WritesAudit.LetsADeletedAppointmentBePutBack"
        "DailyBackup.*:StoreBackup.*:TableLayouts.*"
        "StoreCopy.NeverGivesANumberTwice:StoreCopy.OfRowsThatReferToNothingIsNotMade"
        "Restoration.BringsBackEveryColumnUnderTheSameNumber:Restoration.LeavesItsOwnLineInTheAudit"
        "Restoration.IsRefusedWhereWhatItRefersToIsGone"
        "StatusWrite.TellsThatTheDataAreInUseAndWorksWhenTheyAreFree")
    list(JOIN about_files ":" about_files)
    add_test(NAME test_family.OnServer COMMAND test_family --gtest_filter=-*Postgresql*:${about_files})
    set_tests_properties(test_family.OnServer PROPERTIES ENVIRONMENT KOVARIS_TEST_SERVER=1)
endif()
