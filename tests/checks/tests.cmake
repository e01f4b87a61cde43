# The walls between the folders, as tests.
set(checks ${CMAKE_CURRENT_SOURCE_DIR}/checks)
add_test(NAME Checks.EveryFolderIncludesOnlyWhatItMaySee COMMAND ${checks}/includes)
add_test(NAME Checks.TheIncludeCheckNamesEveryBreach COMMAND ${checks}/includes-test)
add_test(NAME Checks.NothingIsCalledUpward COMMAND ${checks}/links ${CMAKE_BINARY_DIR})
add_test(NAME Checks.TheLinkCheckNamesEveryCallUpward COMMAND ${checks}/links-test)
add_test(NAME Checks.EveryWallHoldsAgainstEveryArrow COMMAND ${checks}/walls-test)
add_test(NAME Checks.PapersNameWhatIsThere COMMAND ${checks}/papers)
add_test(NAME Checks.ThePaperCheckNamesEveryUntruth COMMAND ${checks}/papers-test)
add_test(NAME Checks.TextsPointToNothingOutsideTheRepository COMMAND ${checks}/wording)
add_test(NAME Checks.ComponentLibrariesExportTheirEntryPointsOnly
         COMMAND ${checks}/exports ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
