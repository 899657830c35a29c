kestrel_test(tarnwell
    SOURCES
        FoldersTest.cpp HardwareInformationTest.cpp JPresentWindowControllerTest.cpp JSuggestionsSearchFieldTest.cpp
    LINKS kestrel_tarnwell_ui kestrel_test_product)
