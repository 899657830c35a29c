kestrel_test(petrel
    SOURCES DownloadPlanTest.cpp EngineStoreTest.cpp EngineWordsTest.cpp
    LINKS kestrel_petrel)

# kestrel-cli and the real engine against a server of our own, and an engine that updates itself.
find_package(Python3 REQUIRED COMPONENTS Interpreter)
foreach(suite download engine)
    add_test(NAME petrel.${suite} COMMAND Python3::Interpreter -B "${CMAKE_CURRENT_SOURCE_DIR}/petrel/${suite}_test.py")
    set_tests_properties(petrel.${suite} PROPERTIES
        ENVIRONMENT "KESTREL_CLI=$<TARGET_FILE:kestrel-cli>;KESTREL_SOURCES=${CMAKE_SOURCE_DIR}" TIMEOUT 1800 LABELS long)
endforeach()
