ostrin_add_fuzzer(favorite_file_fuzz ${CMAKE_CURRENT_LIST_DIR}/FavoriteFileFuzz.cpp)
