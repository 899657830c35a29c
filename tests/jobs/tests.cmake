kestrel_test(jobs
    SOURCES
        AfterRunTest.cpp JobListTest.cpp JobQueueTest.cpp JobStoreTest.cpp ManyJobsTest.cpp ScriptedJobs.h
    LINKS kestrel_jobs kestrel_test_product Qt6::DBus)

# The other process of the tests that need one.
add_executable(kestrel_jobs_helper jobs/jobs_helper.cpp)
target_link_libraries(kestrel_jobs_helper PRIVATE kestrel_jobs)
add_dependencies(kestrel_jobs_tests kestrel_jobs_helper JobStore)
target_compile_definitions(kestrel_jobs_tests PRIVATE
    KESTREL_TEST_HELPER="$<TARGET_FILE:kestrel_jobs_helper>"
    KESTREL_JOB_STORE_LIBRARY="$<TARGET_FILE:JobStore>")

add_test(NAME jobs.NothingIsLostIn300Kills COMMAND kestrel_jobs_tests
    --gtest_also_run_disabled_tests --gtest_filter=KilledWriterTest.DISABLED_NothingIsLostIn300Kills)
set_tests_properties(jobs.NothingIsLostIn300Kills PROPERTIES LABELS long TIMEOUT 900)
