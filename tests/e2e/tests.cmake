# Each file drives the real program on a display of its own.
foreach(name conversion hostile language lifecycle logwatcher reports settings update windows)
    add_test(NAME e2e.${name}
             COMMAND /usr/bin/python3 "${CMAKE_CURRENT_LIST_DIR}/${name}_test.py" "${KESTREL_BUNDLE_DIR}")
    set_tests_properties(e2e.${name} PROPERTIES LABELS e2e TIMEOUT 180)
endforeach()

# The prompt, which nothing in the program opens, for the eye
add_executable(kestrel_show_prompt e2e/show_prompt.cpp)
target_link_libraries(kestrel_show_prompt PRIVATE kestrel_remote_ui)

# Preloaded: host names that take long to be not found
add_library(kestrel_slow_names MODULE e2e/slow_names.cpp)
target_link_libraries(kestrel_slow_names PRIVATE ${CMAKE_DL_LIBS})
set_target_properties(kestrel_slow_names PROPERTIES LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")

# What a start costs
add_library(kestrel_first_paint MODULE e2e/first_paint.cpp)
target_link_libraries(kestrel_first_paint PRIVATE ${CMAKE_DL_LIBS})
set_target_properties(kestrel_first_paint PROPERTIES LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
foreach(name instructions a_second_later)
    add_test(NAME start.${name}
             COMMAND /usr/bin/python3 "${CMAKE_CURRENT_LIST_DIR}/start_test.py" "${KESTREL_BUNDLE_DIR}"
                     "$<TARGET_FILE:kestrel_first_paint>" StartTest.test_${name})
    set_tests_properties(start.${name} PROPERTIES LABELS e2e TIMEOUT 600 SKIP_REGULAR_EXPRESSION "skipped=")
endforeach()

# Waits out slow servers for minutes and measures the window meanwhile
set_tests_properties(e2e.hostile PROPERTIES LABELS "e2e;long")
