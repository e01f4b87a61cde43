# The failure sweep: every script once for each border crossing. It grows with the scripts. A build of the
# core alone leaves it to the others: it would find the same there.
if(KOVARIS_CORE_ONLY)
    return()
endif()
add_executable(fault-sweep ${CMAKE_CURRENT_LIST_DIR}/sweep.cpp)
target_link_libraries(fault-sweep PRIVATE scenario_runner)
add_dependencies(fault-sweep KOVA_A_Agenda)
file(GLOB_RECURSE swept CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/scenarios/*.scenario)
foreach(scenario IN LISTS swept)
    file(RELATIVE_PATH name ${CMAKE_CURRENT_SOURCE_DIR}/scenarios ${scenario})
    string(REGEX REPLACE "\\.scenario$" "" name ${name})
    add_test(NAME Faults.${name} COMMAND fault-sweep ${scenario})
    # Each run writes its settings through to the disk: thousands of waits, where memory serves as well.
    if(IS_DIRECTORY /dev/shm)
        set_tests_properties(Faults.${name} PROPERTIES ENVIRONMENT TMPDIR=/dev/shm)
    endif()
endforeach()
