kestrel_test(media
    SOURCES
        MediaFilesTest.cpp
        MediaProberTest.cpp
        MediaReportTest.cpp
        MediaSamples.cpp MediaSamples.h
        ToolMessagesTest.cpp
    LINKS kestrel_media)
