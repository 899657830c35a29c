kestrel_test(jobs
    SOURCES
        OutputFileTest.cpp ToolProcessTest.cpp
    LINKS kestrel_jobs)

# A process that owns tools and parts, and is killed
add_executable(kestrel_tools_helper jobs/tools_helper.cpp)
target_link_libraries(kestrel_tools_helper PRIVATE kestrel_jobs)
add_dependencies(kestrel_jobs_tests kestrel_tools_helper toolGuardian)
target_compile_definitions(kestrel_jobs_tests PRIVATE
    KESTREL_TOOLS_HELPER="$<TARGET_FILE:kestrel_tools_helper>"
    KESTREL_TOOL_GUARDIAN="$<TARGET_FILE:toolGuardian>")
