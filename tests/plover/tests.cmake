kestrel_test(plover
    SOURCES
        RecordCommandTest.cpp
        RecordJobTest.cpp
    LINKS kestrel_plover)

# The real program on a display and with a sound server of its own.
add_test(NAME plover.recording
         COMMAND /usr/bin/python3 "${CMAKE_CURRENT_LIST_DIR}/recording_test.py" "${KESTREL_BUNDLE_DIR}")
set_tests_properties(plover.recording PROPERTIES LABELS e2e TIMEOUT 300)

# A screen of PipeWire's
add_executable(kestrel_frame_source plover/frame_source.cpp)
target_link_libraries(kestrel_frame_source PRIVATE PkgConfig::PipeWire)
