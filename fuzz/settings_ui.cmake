ostrin_add_fuzzer(settings_ui_fuzz ${CMAKE_CURRENT_LIST_DIR}/SettingsUiFuzz.cpp
  ${PROJECT_SOURCE_DIR}/app/JsonIO.cpp)
target_link_libraries(settings_ui_fuzz PRIVATE nlohmann_json::nlohmann_json)
