# One test for each script on each screen, against the same transcript. tests/scenarios/record lays one down anew.
file(GLOB_RECURSE scenarios CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/scenarios/*.scenario)
foreach(scenario IN LISTS scenarios)
    file(RELATIVE_PATH name ${CMAKE_CURRENT_SOURCE_DIR}/scenarios ${scenario})
    string(REGEX REPLACE "\\.scenario$" "" name ${name})
    add_test(NAME Scenario.${name}
             COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/scenarios/check $<TARGET_FILE:agenda-scenario> ${scenario})
    set_tests_properties(Scenario.${name} PROPERTIES
        ENVIRONMENT "KOVARIS_EMULATOR=${CMAKE_CROSSCOMPILING_EMULATOR}")
    if(KOVARIS_SCREEN)
        add_test(NAME ScenarioOnScreen.${name}
                 COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/scenarios/check $<TARGET_FILE:agenda-scenario> ${scenario}
                         --toolkit qt)
        set_tests_properties(ScenarioOnScreen.${name} PROPERTIES
            ENVIRONMENT "KOVARIS_EMULATOR=${CMAKE_CROSSCOMPILING_EMULATOR};QT_QPA_PLATFORM=offscreen")
    endif()
endforeach()

# A script is found in a folder whose name has accents, on every system.
set(accented "${CMAKE_CURRENT_BINARY_DIR}/salão de são joão/ração")
foreach(part IN ITEMS scenario transcript)
    configure_file(${CMAKE_CURRENT_SOURCE_DIR}/scenarios/opening/first_start.${part} "${accented}.${part}" COPYONLY)
endforeach()
foreach(setup IN ITEMS day shop)
    configure_file(${CMAKE_CURRENT_SOURCE_DIR}/scenarios/${setup}.setup
                   "${CMAKE_CURRENT_BINARY_DIR}/salão de são joão/${setup}.setup" COPYONLY)
endforeach()
add_test(NAME ScenarioInAFolderWithAccents
         COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/scenarios/check $<TARGET_FILE:agenda-scenario> "${accented}.scenario")
set_tests_properties(ScenarioInAFolderWithAccents PROPERTIES
    ENVIRONMENT "KOVARIS_EMULATOR=${CMAKE_CROSSCOMPILING_EMULATOR}")
