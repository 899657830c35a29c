kestrel_test(tarnwell
    SOURCES
        FoldersTest.cpp FontsTest.cpp JPresentWindowControllerTest.cpp JSuggestionsSearchFieldTest.cpp
        AlertPanelTest.cpp ImagesTest.cpp PixelFileTest.cpp ThemeTest.cpp TitledWindowTest.cpp
        LWindowTransitionAnimatorTest.cpp LogTest.cpp
        JAppleScriptHelperTest.cpp
        StyledTextViewTest.cpp WebPagesTest.cpp
    LINKS kestrel_tarnwell_ui kestrel_pixel_file_api kestrel_test_product Fontconfig::Fontconfig)
