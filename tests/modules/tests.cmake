kestrel_test(modules
    SOURCES
        ConversionTest.cpp
        MarlinControllerTest.cpp
        ModuleSettings.cpp ModuleSettings.h
        OverviewControllerTest.cpp
        OwnPresetsTest.cpp
    LINKS kestrel_marlin_ui kestrel_heron kestrel_petrel kestrel_plover kestrel_test_product)
