kestrel_test(app
    SOURCES
        AppControllerTest.cpp AppDelegateTest.cpp InterfaceLanguageTest.cpp KestrelControllerTest.cpp
        LaunchCheckTest.cpp ProblemReportsTest.cpp RecordingModule.h SingleInstanceTest.cpp
    LINKS kestrel_app_ui kestrel_test_product kestrel_update Qt6::Network)

# Permission libraries that answer as the test says
foreach(variant KESTREL_FAKE_PERMISSION KESTREL_FAKE_PERMISSION_WITHOUT_DEVICE)
    add_library(${variant} MODULE app/fake_permission.cpp)
    target_link_libraries(${variant} PRIVATE kestrel_capture_permission_api)
    target_compile_definitions(kestrel_app_tests PRIVATE ${variant}="$<TARGET_FILE:${variant}>")
    add_dependencies(kestrel_app_tests ${variant})
endforeach()
target_compile_definitions(KESTREL_FAKE_PERMISSION_WITHOUT_DEVICE PRIVATE WITHOUT_DEVICE)
