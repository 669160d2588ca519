ostrin_add_benchmark(panes_bench ${CMAKE_CURRENT_LIST_DIR}/PanesBench.cpp)
add_dependencies(panes_bench ostrin_pane_bundles)
