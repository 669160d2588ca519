ostrin_add_fuzzer(formatters_fuzz ${CMAKE_CURRENT_LIST_DIR}/FormattersFuzz.cpp)
