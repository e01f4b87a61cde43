# One test for each script on each screen, against the same transcript. tests/scenarios/record lays one down anew.
file(GLOB_RECURSE scenarios CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/scenarios/*.scenario)
foreach(scenario IN LISTS scenarios)
    file(RELATIVE_PATH name ${CMAKE_CURRENT_SOURCE_DIR}/scenarios ${scenario})
    string(REGEX REPLACE "\\.scenario$" "" name ${name})
    add_test(NAME Scenario.${name}
             COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/scenarios/check $<TARGET_FILE:agenda-scenario> ${scenario})
    if(NOT KOVARIS_CORE_ONLY)
        add_test(NAME ScenarioOnScreen.${name}
                 COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/scenarios/check $<TARGET_FILE:agenda-scenario> ${scenario}
                         --toolkit qt)
        set_tests_properties(ScenarioOnScreen.${name} PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)
    endif()
endforeach()
