kestrel_test(settings
    SOURCES
        DispatcherTest.cpp JKestrelSettingControllerTest.cpp JKestrelSettingTest.cpp SettingRulesTest.cpp WebLinksTest.cpp
    LINKS kestrel_settings_ui kestrel_test_product)
target_compile_definitions(kestrel_settings_tests PRIVATE
    KESTREL_FOREIGN_ARCHIVE="${CMAKE_CURRENT_SOURCE_DIR}/foundation/data/settings-foreign.archive"
    KESTREL_TRANSLATIONS="${KESTREL_RESOURCES_DIR}/translations")
add_dependencies(kestrel_settings_tests kestrel_translations)
