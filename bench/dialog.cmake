ostrin_add_benchmark(dialog_bench ${CMAKE_CURRENT_LIST_DIR}/DialogBench.cpp)
target_link_libraries(dialog_bench PRIVATE ostrin_bench_session Cups::Cups)
# The reference is libcups reading the PPD, which libcups marks deprecated in favour of
# IPP attributes that this printer does not publish.
set_source_files_properties(${CMAKE_CURRENT_LIST_DIR}/DialogBench.cpp
  PROPERTIES COMPILE_OPTIONS -Wno-deprecated-declarations)
