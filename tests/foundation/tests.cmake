kestrel_test(foundation
    SOURCES
        BasicsTest.cpp FetchTest.cpp FileNamesTest.cpp KeyedArchiveTest.cpp OutsidePictureTest.cpp PropertyListTest.cpp
        StyledHtmlTest.cpp UserDefaultsTest.cpp
    LINKS kestrel_foundation kestrel_foundation_ui)

# The other process of the tests that need one.
add_executable(kestrel_foundation_helper foundation/foundation_helper.cpp)
target_link_libraries(kestrel_foundation_helper PRIVATE kestrel_foundation)
add_dependencies(kestrel_foundation_tests kestrel_foundation_helper)
target_compile_definitions(kestrel_foundation_tests PRIVATE KESTREL_TEST_HELPER="$<TARGET_FILE:kestrel_foundation_helper>")

# The transfer program, one with authorities of the test's own, and one without a network
add_executable(kestrel_private_transfer foundation/private_transfer.cpp)
target_link_libraries(kestrel_private_transfer PRIVATE kestrel_web_transfer_session)
add_executable(kestrel_scripted_transfer foundation/scripted_transfer.cpp)
target_link_libraries(kestrel_scripted_transfer PRIVATE kestrel_web_transfer)
add_dependencies(kestrel_foundation_tests kestrel_scripted_transfer WebTransfer)
target_compile_definitions(kestrel_foundation_tests PRIVATE
    KESTREL_SCRIPTED_TRANSFER="$<TARGET_FILE:kestrel_scripted_transfer>"
    KESTREL_TRANSFER_PROGRAM="$<TARGET_FILE:WebTransfer>")
add_test(NAME foundation.certificates
         COMMAND /usr/bin/python3 "${CMAKE_CURRENT_LIST_DIR}/certificates_test.py"
                 "$<TARGET_FILE:WebTransfer>" "$<TARGET_FILE:kestrel_private_transfer>")
set_tests_properties(foundation.certificates PROPERTIES TIMEOUT 120)
