kestrel_test(modules
    SOURCES
        ConversionQueueTest.cpp
        MarlinControllerTest.cpp
        MediaInformationTest.cpp
        ModuleSettings.cpp ModuleSettings.h
        OutputFileTest.cpp
        OverviewControllerTest.cpp
        TranscodeCommandTest.cpp
        TranscodeReportsTest.cpp
    LINKS kestrel_marlin_ui kestrel_heron kestrel_petrel kestrel_plover kestrel_test_product)
