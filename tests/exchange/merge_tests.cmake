zvx_add_test(merge_test ${CMAKE_CURRENT_LIST_DIR}/merge_test.cpp)
