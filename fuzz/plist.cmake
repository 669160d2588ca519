ostrin_add_fuzzer(plist_fuzz ${CMAKE_CURRENT_LIST_DIR}/PlistFuzz.cpp)
