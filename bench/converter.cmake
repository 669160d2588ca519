ostrin_add_benchmark(converter_bench ${CMAKE_CURRENT_LIST_DIR}/ConverterBench.cpp)
