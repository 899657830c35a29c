kestrel_test(media
    SOURCES
        MediaFilesTest.cpp
        MediaProberTest.cpp
        MediaReportTest.cpp
        MediaSamples.cpp MediaSamples.h
        PresetTest.cpp
        ToolMessagesTest.cpp
        TranscodeCommandTest.cpp
        TranscodePlanTest.cpp
    LINKS kestrel_media)

# What the transcoder is run with, for samples of every kind and through every preset.
add_executable(kestrel_transcode_runs media/transcodeRuns.cpp)
target_link_libraries(kestrel_transcode_runs PRIVATE kestrel_media)
add_test(NAME media.catalogue COMMAND "${CMAKE_CURRENT_SOURCE_DIR}/media/catalogue.py" "$<TARGET_FILE:kestrel_transcode_runs>")
set_tests_properties(media.catalogue PROPERTIES LABELS long TIMEOUT 1800)
