# kestrel-cli from outside, without a display
add_test(NAME cli.convert COMMAND /usr/bin/python3 "${CMAKE_CURRENT_LIST_DIR}/cli_test.py" "${KESTREL_BUNDLE_DIR}")
set_tests_properties(cli.convert PROPERTIES TIMEOUT 300)
add_test(NAME cli.300_kills COMMAND /usr/bin/python3 "${CMAKE_CURRENT_LIST_DIR}/kills_test.py" "${KESTREL_BUNDLE_DIR}")
set_tests_properties(cli.300_kills PROPERTIES LABELS long TIMEOUT 3600)
