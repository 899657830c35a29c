kestrel_test(media
    SOURCES
        MediaFilesTest.cpp
        MediaReportTest.cpp
        ToolMessagesTest.cpp
    LINKS kestrel_media)
