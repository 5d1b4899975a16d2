# Runs a libFuzzer program for SECONDS on a fresh copy of the committed corpus CORPUS in
# WORK, so that what the fuzzer adds never lands in the source tree. Crash inputs are
# left in WORK/artifacts.

file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK}/artifacts)
file(COPY ${CORPUS}/ DESTINATION ${WORK}/corpus)
execute_process(
    COMMAND ${FUZZER} -max_total_time=${SECONDS} -timeout=10 -rss_limit_mb=2048
            -artifact_prefix=${WORK}/artifacts/ ${WORK}/corpus
    RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${FUZZER} failed (${result}); the input is in ${WORK}/artifacts")
endif()
