ostrin_add_fuzzer(json_input_fuzz ${CMAKE_CURRENT_LIST_DIR}/JsonInputFuzz.cpp ${PROJECT_SOURCE_DIR}/app/JsonIO.cpp)
target_link_libraries(json_input_fuzz PRIVATE nlohmann_json::nlohmann_json)
target_compile_definitions(json_input_fuzz PRIVATE OSTRIN_BUILD_BUNDLE_DIR="${OSTRIN_BUILD_BUNDLE_DIR}")
add_dependencies(json_input_fuzz ostrin_bundle)
