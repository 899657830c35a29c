kestrel_test(tarnwell
    SOURCES
        FoldersTest.cpp JPresentWindowControllerTest.cpp JSuggestionsSearchFieldTest.cpp
        AlertPanelTest.cpp ImagesTest.cpp TitledWindowTest.cpp LWindowTransitionAnimatorTest.cpp LogTest.cpp
        JAppleScriptHelperTest.cpp
        StyledTextViewTest.cpp WebPagesTest.cpp
    LINKS kestrel_tarnwell_ui kestrel_test_product)
