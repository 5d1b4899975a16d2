target_sources(zvx_core PRIVATE ${CMAKE_CURRENT_LIST_DIR}/merge.cpp)
