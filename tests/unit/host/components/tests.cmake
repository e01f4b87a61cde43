# The libraries that the loader is tried on: a whole one, one that refuses its host, one that lacks an
# entry point.
set(component_test_libraries ${CMAKE_CURRENT_LIST_DIR}/libraries)
kovaris_component_library(test_component ${component_test_libraries}/test_component.cpp)
target_link_libraries(test_component PRIVATE contracts)
kovaris_loaded_library(test_component_refusing ${component_library_exports}
                       ${component_test_libraries}/refusing.cpp)
target_link_libraries(test_component_refusing PRIVATE contracts)
add_library(test_component_incomplete SHARED ${component_test_libraries}/incomplete.cpp)

kovaris_test_program(test_components host_components)
add_dependencies(test_components test_component test_component_refusing test_component_incomplete)
target_compile_definitions(test_components PRIVATE
    TEST_COMPONENT="$<TARGET_FILE:test_component>"
    TEST_COMPONENT_REFUSING="$<TARGET_FILE:test_component_refusing>"
    TEST_COMPONENT_INCOMPLETE="$<TARGET_FILE:test_component_incomplete>")
