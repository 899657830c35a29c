kestrel_test(tarnwell
    SOURCES
        AlertPanelTest.cpp ControlsTest.cpp ImagesTest.cpp JTitledWindowTest.cpp LWindowTransitionAnimatorTest.cpp
        LocalizationTest.cpp LogTest.cpp ProductInformationTest.cpp ThemeTest.cpp WebPagesTest.cpp
    LINKS kestrel_tarnwell_ui kestrel_test_product)

set_source_files_properties(tarnwell/data/TarnwellPublic_de.ts PROPERTIES OUTPUT_LOCATION "${CMAKE_CURRENT_BINARY_DIR}/catalogues")
qt_add_lrelease(kestrel_tarnwell_tests TS_FILES tarnwell/data/TarnwellPublic_de.ts)
target_compile_definitions(kestrel_tarnwell_tests PRIVATE KESTREL_TEST_CATALOGUES="${CMAKE_CURRENT_BINARY_DIR}/catalogues")
