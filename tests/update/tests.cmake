kestrel_test(update
    SOURCES
        LaunchDecisionTest.cpp UPParserTest.cpp UpgradeWindowControllerTest.cpp VersionOrderTest.cpp
    LINKS kestrel_update_ui kestrel_test_product)
