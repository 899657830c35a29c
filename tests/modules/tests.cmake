kestrel_test(modules
    SOURCES
        ConversionTest.cpp
        EditWindowTest.cpp
        JobPageTest.cpp
        MarlinControllerTest.cpp
        ModuleSettings.cpp ModuleSettings.h
        PloversControllerTest.cpp
        PetrelControllerTest.cpp
    LINKS kestrel_marlin_ui kestrel_heron_ui kestrel_petrel_ui kestrel_plover_ui kestrel_test_product)
