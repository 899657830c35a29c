kestrel_test(remote
    SOURCES
        JAdvertisementWinControllerTest.cpp JPromptWindowControllerTest.cpp PromotionTest.cpp RemoteConfigurationTest.cpp
    LINKS kestrel_remote_ui kestrel_test_product)
target_compile_definitions(kestrel_remote_tests PRIVATE
    KESTREL_PROMPT_FILE="${CMAKE_SOURCE_DIR}/resources/prompt-mlde.xml")
