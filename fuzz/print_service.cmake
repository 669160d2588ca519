ostrin_add_fuzzer(soap_reply_fuzz ${CMAKE_CURRENT_LIST_DIR}/SoapReplyFuzz.cpp)
