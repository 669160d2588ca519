ostrin_add_benchmark(settings_ui_bench ${CMAKE_CURRENT_LIST_DIR}/SettingsUiBench.cpp)
