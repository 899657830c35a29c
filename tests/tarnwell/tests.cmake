kestrel_test(tarnwell
    SOURCES
        AlertPanelTest.cpp ImagesTest.cpp JTitledWindowTest.cpp LWindowTransitionAnimatorTest.cpp LogTest.cpp
        WebPagesTest.cpp
    LINKS kestrel_tarnwell_ui kestrel_test_product)
