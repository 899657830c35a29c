kestrel_test(jobs
    SOURCES
        AfterRunTest.cpp JobListTest.cpp JobQueueTest.cpp JobStoreTest.cpp ManyJobsTest.cpp OutputFileTest.cpp ScriptedJobs.h ToolProcessTest.cpp
    LINKS kestrel_jobs kestrel_test_product Qt6::DBus)

# Other processes of the tests, to be killed: one owns jobs, one owns tools and parts
foreach(helper jobs tools)
    add_executable(kestrel_${helper}_helper jobs/${helper}_helper.cpp)
    target_link_libraries(kestrel_${helper}_helper PRIVATE kestrel_jobs)
endforeach()
add_dependencies(kestrel_jobs_tests kestrel_jobs_helper kestrel_tools_helper JobStore toolGuardian)
target_compile_definitions(kestrel_jobs_tests PRIVATE
    KESTREL_TEST_HELPER="$<TARGET_FILE:kestrel_jobs_helper>"
    KESTREL_TOOLS_HELPER="$<TARGET_FILE:kestrel_tools_helper>"
    KESTREL_TOOL_GUARDIAN="$<TARGET_FILE:toolGuardian>"
    KESTREL_JOB_STORE_LIBRARY="$<TARGET_FILE:JobStore>")
