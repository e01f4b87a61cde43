# What the operating system does, by tests that hold on each and those of this one.
add_library(test_system_library SHARED ${CMAKE_CURRENT_LIST_DIR}/libraries/answering.cpp)

kovaris_test_program(test_system unit/system system)
file(GLOB own_tests CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/posix/*.cpp)
if(WIN32)
    file(GLOB own_tests CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/windows/*.cpp)
endif()
target_sources(test_system PRIVATE ${own_tests})
add_dependencies(test_system test_system_library)
target_compile_definitions(test_system PRIVATE TEST_LIBRARY="$<TARGET_FILE:test_system_library>")
