ostrin_add_fuzzer(ppd_data_fuzz ${CMAKE_CURRENT_LIST_DIR}/PpdDataFuzz.cpp)
target_link_libraries(ppd_data_fuzz PRIVATE Cups::Cups)
