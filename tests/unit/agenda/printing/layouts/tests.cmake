# The layouts alone: the rest of the module is not needed to look at them.
add_library(report_layouts STATIC ${CMAKE_SOURCE_DIR}/agenda/printing/layout_parts.cpp
            ${CMAKE_SOURCE_DIR}/agenda/printing/drFichaDoAgendamentoParaInspecaoDoAnimal.cpp
            ${CMAKE_SOURCE_DIR}/agenda/printing/drFichaDoAgendamentoParaTransporte.cpp
            ${CMAKE_SOURCE_DIR}/agenda/printing/drListaDeAgendamentos.cpp
            ${CMAKE_SOURCE_DIR}/agenda/printing/drListaDeAgendamentosParaTransporte.cpp)
target_link_libraries(report_layouts PUBLIC contracts)

kovaris_test_program(test_layouts report_layouts)
target_compile_definitions(test_layouts PRIVATE LAYOUT_TABLES="${CMAKE_CURRENT_LIST_DIR}/layouts.txt")
