# Each file drives the real program on a display of its own.
foreach(name conversion home language lifecycle settings)
    add_test(NAME e2e.${name}
             COMMAND /usr/bin/python3 "${CMAKE_CURRENT_LIST_DIR}/${name}_test.py" "${KESTREL_BUNDLE_DIR}")
    set_tests_properties(e2e.${name} PROPERTIES LABELS e2e TIMEOUT 180)
endforeach()
