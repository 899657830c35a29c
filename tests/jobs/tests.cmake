kestrel_test(jobs SOURCES JobQueueTest.cpp LINKS kestrel_jobs)
