# One suite for the business contract, over everything that offers it.
if(NOT KOVARIS_CORE_ONLY)
    kovaris_test_program(test_business_conformance
                         scenario host_components family_business test_postgres_server)
    target_compile_definitions(test_business_conformance PRIVATE
        FAMILY_LIBRARY="$<TARGET_FILE:KOVA_N_Familia>")
    kovaris_precompile(test_business_conformance ${CMAKE_CURRENT_LIST_DIR}/suite.hpp)
    add_dependencies(test_business_conformance KOVA_N_Familia)
endif()
