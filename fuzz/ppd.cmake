ostrin_add_fuzzer(ppd_fuzz ${CMAKE_CURRENT_LIST_DIR}/PpdFuzz.cpp)
