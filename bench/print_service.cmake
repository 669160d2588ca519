ostrin_add_benchmark(print_service_bench ${CMAKE_CURRENT_LIST_DIR}/PrintServiceBench.cpp)
target_link_libraries(print_service_bench PRIVATE LibXml2::LibXml2)
