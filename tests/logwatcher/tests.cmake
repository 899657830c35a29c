kestrel_test(logwatcher
    SOURCES LogFileTest.cpp LogSearchTest.cpp LogViewTest.cpp
    LINKS kestrel_logwatcher_ui)
