kestrel_test(foundation
    SOURCES
        BasicsTest.cpp KeyedArchiveTest.cpp PropertyListTest.cpp UserDefaultsTest.cpp
    LINKS kestrel_foundation kestrel_foundation_ui)

# The other process of the tests that need one.
add_executable(kestrel_foundation_helper foundation/foundation_helper.cpp)
target_link_libraries(kestrel_foundation_helper PRIVATE kestrel_foundation)
add_dependencies(kestrel_foundation_tests kestrel_foundation_helper)
target_compile_definitions(kestrel_foundation_tests PRIVATE KESTREL_TEST_HELPER="$<TARGET_FILE:kestrel_foundation_helper>")
