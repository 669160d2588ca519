ostrin_add_fuzzer(settings_ui_fuzz ${CMAKE_CURRENT_LIST_DIR}/SettingsUiFuzz.cpp)
target_link_libraries(settings_ui_fuzz PRIVATE nlohmann_json::nlohmann_json)
