ostrin_add_fuzzer(lp_quoting_fuzz ${CMAKE_CURRENT_LIST_DIR}/LpQuotingFuzz.cpp)
target_link_libraries(lp_quoting_fuzz PRIVATE Cups::Cups)
