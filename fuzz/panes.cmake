ostrin_add_fuzzer(panes_fuzz ${CMAKE_CURRENT_LIST_DIR}/PanesFuzz.cpp)
target_link_libraries(panes_fuzz PRIVATE nlohmann_json::nlohmann_json)
