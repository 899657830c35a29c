kestrel_test(jobs
    SOURCES
        OutputFileTest.cpp ToolProcessTest.cpp
    LINKS kestrel_jobs)

# The other process of the tests that need one: it owns tools and parts, and is killed.
add_executable(kestrel_jobs_helper jobs/jobs_helper.cpp)
target_link_libraries(kestrel_jobs_helper PRIVATE kestrel_jobs)
add_dependencies(kestrel_jobs_tests kestrel_jobs_helper toolGuardian)
target_compile_definitions(kestrel_jobs_tests PRIVATE
    KESTREL_TEST_HELPER="$<TARGET_FILE:kestrel_jobs_helper>"
    KESTREL_TOOL_GUARDIAN="$<TARGET_FILE:toolGuardian>")
