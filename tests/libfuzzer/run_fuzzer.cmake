# Runs a libFuzzer target for a bounded time on its seed corpus. New inputs go to a scratch corpus in
# the build tree, so the seeds in the source tree stay as they are.
#   cmake -DFUZZER=... -DSEEDS=... -DWORK=... -DSECONDS=... -P run_fuzzer.cmake
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK}/corpus)
execute_process(
    COMMAND ${FUZZER} -max_total_time=${SECONDS} -max_len=4096 -timeout=10 -rss_limit_mb=1024
            -print_final_stats=1 -artifact_prefix=${WORK}/ ${WORK}/corpus ${SEEDS}
    RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
    message(FATAL_ERROR "${FUZZER} found a failing input (exit ${rc}); it is in ${WORK}")
endif()
