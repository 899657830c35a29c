kestrel_test(media
    SOURCES
        HardwareInformationTest.cpp
        MediaFilesTest.cpp
        MediaProberTest.cpp
        MediaReportTest.cpp
        MediaSamples.cpp MediaSamples.h
        OutputCheckTest.cpp
        OwnPresetsTest.cpp
        PlanMaterial.h
        PresetTest.cpp
        PictureScanTest.cpp
        ToolMessagesTest.cpp
        SubtitleFileTest.cpp
        TrackPlanTest.cpp
        TranscodeCommandTest.cpp
        TranscodeJobTest.cpp
        TranscodePlanTest.cpp
    LINKS kestrel_media_ui)

# What the transcoder is run with, for samples of every kind and through every preset.
add_executable(kestrel_transcode_runs media/transcodeRuns.cpp)
target_link_libraries(kestrel_transcode_runs PRIVATE kestrel_media)
add_test(NAME media.catalogue COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/media/catalogue.py" "$<TARGET_FILE:kestrel_transcode_runs>")
set_tests_properties(media.catalogue PROPERTIES LABELS long TIMEOUT 1800)

# Damage of every kind, which takes minutes: ctest -L long
add_executable(kestrel_media_helper media/media_helper.cpp)
target_link_libraries(kestrel_media_helper PRIVATE kestrel_media)
add_library(kestrel_failing_disk MODULE media/failing_disk.cpp)
target_link_libraries(kestrel_failing_disk PRIVATE ${CMAKE_DL_LIBS})
add_test(NAME media.damage COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/media/damage_test.py"
    "$<TARGET_FILE:kestrel_media_helper>" "$<TARGET_FILE:kestrel_failing_disk>")
set_tests_properties(media.damage PROPERTIES LABELS long TIMEOUT 3600)
