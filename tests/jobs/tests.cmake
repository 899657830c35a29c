kestrel_test(jobs SOURCES AfterRunTest.cpp JobQueueTest.cpp LINKS kestrel_jobs kestrel_test_product Qt6::DBus)
