kestrel_test(support_services
    SOURCES XMLReader2Test.cpp
    LINKS kestrel_support)
