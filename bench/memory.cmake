ostrin_add_benchmark(memory_bench ${CMAKE_CURRENT_LIST_DIR}/MemoryBench.cpp)
target_link_libraries(memory_bench PRIVATE ostrin_bench_session)
add_dependencies(memory_bench ostrin-flow)
target_compile_definitions(memory_bench PRIVATE OSTRIN_COMMAND_PATH="$<TARGET_FILE:ostrin-flow>")
