ostrin_add_fuzzer(converter_fuzz ${CMAKE_CURRENT_LIST_DIR}/ConverterFuzz.cpp)
