target_sources(zvx_core PRIVATE
    ${CMAKE_CURRENT_LIST_DIR}/export_prep.cpp
    ${CMAKE_CURRENT_LIST_DIR}/export_target.cpp
    ${CMAKE_CURRENT_LIST_DIR}/export_toc.cpp
)
