if(NOT KOVARIS_CORE_ONLY)
    kovaris_test_program(test_tools agenda_data_commands)
    target_link_libraries(test_tools PRIVATE test_postgres_server)
    if(WIN32)
        set_source_files_properties(${CMAKE_CURRENT_LIST_DIR}/import_audit_test.cpp PROPERTIES
            INCLUDE_DIRECTORIES ${CMAKE_BINARY_DIR}/headers/nlohmann_json)
    else()
        target_sources(test_tools PRIVATE ${CMAKE_CURRENT_LIST_DIR}/posix/server_rows.cpp)
    endif()
    kovaris_precompile(test_tools ${CMAKE_CURRENT_LIST_DIR}/import_fixture.hpp <soci/soci.h>)

    # All of it again with the databases on a server. Left out is what needs none, and the disk that is full: it
    # is this computer's.
    kovaris_test_on_server(test_tools "Imports.OnAFullDiskImportNothing")
endif()
