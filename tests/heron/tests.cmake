kestrel_test(heron
    SOURCES DiscContentsTest.cpp DiscPlanTest.cpp TitleClockTest.cpp
    LINKS kestrel_disc kestrel_disc_reading kestrel_heron)
kestrel_test(heron_window
    SOURCES ../heron/HeronControllerTest.cpp ../modules/ModuleSettings.cpp
        ../modules/ModuleSettings.h
    LINKS kestrel_heron_ui kestrel_test_product Qt6::DBus)

# The tools over authored discs. A library that lets reads fail is preloaded into some.
add_library(kestrel_failing_reads MODULE heron/failing_reads.cpp)
find_package(Python3 REQUIRED COMPONENTS Interpreter)
set(heron_discs "${CMAKE_CURRENT_BINARY_DIR}/discs")
set(heron_environment
    "KESTREL_DISC_TOOLS=${KESTREL_RESOURCES_DIR}/heron.bundle/Contents/Resources"
    "KESTREL_DISCS=${heron_discs}"
    "KESTREL_FAILING_READS=$<TARGET_FILE:kestrel_failing_reads>")
add_test(NAME heron.make_discs COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/heron/make_discs.sh" "${heron_discs}")
set_tests_properties(heron.make_discs PROPERTIES FIXTURES_SETUP heron_discs TIMEOUT 300)
foreach(suite DiscInfo DiscToImage DiscCover DiscTitle)
    add_test(NAME heron.${suite}
        COMMAND Python3::Interpreter -B "${CMAKE_CURRENT_SOURCE_DIR}/heron/disc_tools_test.py" ${suite})
    set_tests_properties(heron.${suite} PROPERTIES
        ENVIRONMENT "${heron_environment}" FIXTURES_REQUIRED heron_discs TIMEOUT 300)
endforeach()
add_test(NAME heron.damaged_tables
    COMMAND Python3::Interpreter -B "${CMAKE_CURRENT_SOURCE_DIR}/heron/damaged_tables.py" 10000)
set_tests_properties(heron.damaged_tables PROPERTIES
    ENVIRONMENT "${heron_environment}" FIXTURES_REQUIRED heron_discs TIMEOUT 3600 LABELS long)

# kestrel-cli over the same discs: what arrives is looked at.
foreach(suite Usage WholeDisc Titles)
    add_test(NAME heron.disc_command.${suite}
        COMMAND Python3::Interpreter -B "${CMAKE_CURRENT_SOURCE_DIR}/heron/disc_command_test.py" ${suite})
    set_tests_properties(heron.disc_command.${suite} PROPERTIES
        ENVIRONMENT "${heron_environment};KESTREL_CLI=$<TARGET_FILE:kestrel-cli>"
        FIXTURES_REQUIRED heron_discs TIMEOUT 900 LABELS long)
endforeach()
