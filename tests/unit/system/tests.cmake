# What the operating system does, by tests that hold on each and those of this one.
add_library(test_system_library SHARED ${CMAKE_CURRENT_LIST_DIR}/libraries/answering.cpp)

kovaris_test_program(test_system system)
get_target_property(system_tests test_system SOURCES)
if(WIN32)
    list(FILTER system_tests EXCLUDE REGEX "/system/posix/")
else()
    list(FILTER system_tests EXCLUDE REGEX "/system/windows/")
    target_link_libraries(test_system PRIVATE test_network_disk)
endif()
set_target_properties(test_system PROPERTIES SOURCES "${system_tests}")
add_dependencies(test_system test_system_library)
target_compile_definitions(test_system PRIVATE TEST_LIBRARY="$<TARGET_FILE:test_system_library>")
