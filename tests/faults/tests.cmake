# The failure sweep: every script once for each border crossing. It grows with the scripts. A build of the
# core alone leaves it to the others: it would find the same there.
if(NOT KOVARIS_SCREEN)
    return()
endif()
add_executable(fault-sweep ${CMAKE_CURRENT_LIST_DIR}/sweep.cpp)
target_link_libraries(fault-sweep PRIVATE scenario_screens)
target_compile_definitions(fault-sweep PRIVATE MODULE_LIBRARY="$<TARGET_FILE:KOVA_A_Agenda>")
add_dependencies(fault-sweep KOVA_A_Agenda)

# A sweep is thousands of runs. Each writes its settings through to the disk, where memory serves as well; and
# under the sanitizer most of its time would go into the depth of the stacks kept for each allocation.
set(sweep_environment "ASAN_OPTIONS=malloc_context_size=3")
if(IS_DIRECTORY /dev/shm)
    list(APPEND sweep_environment "TMPDIR=/dev/shm")
endif()
# The sanitizers slow it down sixfold: under them each seventh crossing is enough, as neighbours lie in the same
# procedures, and the other builds take every one.
set(step 1)
if(KOVARIS_SANITIZE)
    set(step 7)
endif()
file(GLOB_RECURSE swept CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/scenarios/*.scenario)
foreach(scenario IN LISTS swept)
    file(RELATIVE_PATH name ${CMAKE_CURRENT_SOURCE_DIR}/scenarios ${scenario})
    string(REGEX REPLACE "\\.scenario$" "" name ${name})
    add_test(NAME Faults.${name} COMMAND fault-sweep --every ${step} ${scenario})
    set_tests_properties(Faults.${name} PROPERTIES ENVIRONMENT "${sweep_environment}")
endforeach()

# On the real screen a sample of all crossings, in two halves: a run takes longer there. The whole, on demand:
# fault-sweep --toolkit qt SCENARIO...
set(sample 997)
list(LENGTH swept scripts)
math(EXPR middle "${scripts} / 2")
list(SUBLIST swept 0 ${middle} first_half)
list(SUBLIST swept ${middle} -1 second_half)
foreach(half IN ITEMS first second)
    add_test(NAME FaultsOnScreen.${half}Half
             COMMAND fault-sweep --toolkit qt --every ${sample} ${${half}_half})
    set_tests_properties(FaultsOnScreen.${half}Half PROPERTIES
        ENVIRONMENT "${sweep_environment};QT_QPA_PLATFORM=offscreen" COST ${cost_of_long_tests})
endforeach()

add_test(NAME FaultSweepTellsAScriptThatItCannotRead COMMAND fault-sweep ${CMAKE_CURRENT_LIST_DIR}/none.scenario)
set_tests_properties(FaultSweepTellsAScriptThatItCannotRead PROPERTIES
    PASS_REGULAR_EXPRESSION "^Não foi possível ler o roteiro .*none.scenario"
    FAIL_REGULAR_EXPRESSION "terminate")
