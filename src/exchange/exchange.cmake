target_sources(zvx_core PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/exchange_runs.cpp
    ${CMAKE_CURRENT_LIST_DIR}/filter_program.cpp
)
if(TARGET zvx_forms)
    target_sources(zvx_forms PRIVATE ${CMAKE_CURRENT_LIST_DIR}/exchange_forms.cpp)
endif()
