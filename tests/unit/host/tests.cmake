if(KOVARIS_SCREEN)
    kovaris_test_program(test_host host_application Qt6::Test family_presentation family_business
        agenda_module toolkit_headless
        test_postgres_server)
    add_dependencies(test_host kovaris agenda-data KOVA_A_Familia)
    kovaris_precompile(test_host OF test_qt_application)
endif()
