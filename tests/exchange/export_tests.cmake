zvx_add_test(export_test ${CMAKE_CURRENT_LIST_DIR}/export_test.cpp)
