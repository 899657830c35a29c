kestrel_test(plover
    SOURCES
        RecordCommandTest.cpp
        RecordJobTest.cpp
    LINKS kestrel_frames kestrel_plover)

# The real program on a display and with a sound server of its own.
add_test(NAME plover.recording
         COMMAND /usr/bin/python3 "${CMAKE_CURRENT_LIST_DIR}/recording_test.py" "${KESTREL_BUNDLE_DIR}")
set_tests_properties(plover.recording PROPERTIES LABELS e2e TIMEOUT 300)

if(TARGET screenFrames)
    # The same through a stand-in for the desktop's portal and the real PipeWire, in which a screen is made.
    add_executable(kestrel_frame_source plover/frame_source.cpp)
    target_link_libraries(kestrel_frame_source PRIVATE PkgConfig::PipeWire)
    add_test(NAME plover.wayland
             COMMAND /usr/bin/python3 "${CMAKE_CURRENT_LIST_DIR}/wayland_test.py" "${KESTREL_BUNDLE_DIR}"
                     $<TARGET_FILE:kestrel_frame_source>)
    set_tests_properties(plover.wayland PROPERTIES LABELS e2e TIMEOUT 300)
endif()
