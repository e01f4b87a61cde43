# What the operating system does, by tests that hold on each and those of this one.
add_library(test_system_library SHARED ${CMAKE_CURRENT_LIST_DIR}/libraries/answering.cpp)
target_link_libraries(test_system_library PRIVATE system)

kovaris_test_program(test_system system)
if(NOT WIN32)
    target_link_libraries(test_system PRIVATE test_network_disk)
endif()
add_dependencies(test_system test_system_library)
target_compile_definitions(test_system PRIVATE TEST_LIBRARY="$<TARGET_FILE:test_system_library>")
kovaris_precompile(test_system ${CMAKE_CURRENT_LIST_DIR}/folder_fixture.hpp <gtest/gtest.h>)
