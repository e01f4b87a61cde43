# One test for each script. tests/scenarios/record lays down a transcript anew.
file(GLOB_RECURSE scenarios CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/scenarios/*.scenario)
foreach(scenario IN LISTS scenarios)
    file(RELATIVE_PATH name ${CMAKE_CURRENT_SOURCE_DIR}/scenarios ${scenario})
    string(REGEX REPLACE "\\.scenario$" "" name ${name})
    add_test(NAME Scenario.${name}
             COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/scenarios/check $<TARGET_FILE:agenda-scenario> ${scenario})
endforeach()
