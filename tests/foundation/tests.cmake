kestrel_test(foundation
    SOURCES
        BasicsTest.cpp FetchTest.cpp KeyedArchiveTest.cpp PropertyListTest.cpp StyledHtmlTest.cpp UserDefaultsTest.cpp
    LINKS kestrel_foundation kestrel_foundation_ui)

# The other process of the tests that need one.
add_executable(kestrel_foundation_helper foundation/foundation_helper.cpp)
target_link_libraries(kestrel_foundation_helper PRIVATE kestrel_foundation)
add_dependencies(kestrel_foundation_tests kestrel_foundation_helper)
target_compile_definitions(kestrel_foundation_tests PRIVATE KESTREL_TEST_HELPER="$<TARGET_FILE:kestrel_foundation_helper>")

# The transfer library, and one without a network.
add_library(kestrel_scripted_transfer MODULE foundation/scripted_transfer.cpp)
target_link_libraries(kestrel_scripted_transfer PRIVATE kestrel_web_transfer_api Qt6::Core)
add_dependencies(kestrel_foundation_tests kestrel_scripted_transfer WebTransfer)
target_compile_definitions(kestrel_foundation_tests PRIVATE
    KESTREL_SCRIPTED_TRANSFER="$<TARGET_FILE:kestrel_scripted_transfer>"
    KESTREL_TRANSFER_LIBRARY="$<TARGET_FILE:WebTransfer>")
