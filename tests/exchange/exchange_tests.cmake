zvx_add_test(exchange_runs_test ${CMAKE_CURRENT_LIST_DIR}/exchange_runs_test.cpp)
