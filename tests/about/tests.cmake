kestrel_test(about
    SOURCES JKestrelAboutControllerTest.cpp
    LINKS kestrel_about_ui kestrel_test_product)
