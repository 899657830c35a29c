kestrel_test(modules
    SOURCES
        ModuleSettings.cpp ModuleSettings.h
        OverviewControllerTest.cpp
    LINKS kestrel_marlin_ui kestrel_heron kestrel_petrel kestrel_test_product)
