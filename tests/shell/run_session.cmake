# Runs a scripted shell session and compares its output (standard output and error, merged) with the
# expected text. MODE: c (the script's lines joined by ';' and given to -c), file (the script as an
# argument) or pipe (the script on standard input).
file(READ ${EXPECTED} expected)
if(MODE STREQUAL "c")
    file(STRINGS ${SCRIPT} lines)
    list(JOIN lines "; " commands)
    execute_process(COMMAND ${SHELL} ${ARGS} -c "${commands}"
        OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE rc)
elseif(MODE STREQUAL "file")
    execute_process(COMMAND ${SHELL} ${ARGS} ${SCRIPT}
        OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE rc)
else()
    execute_process(COMMAND ${SHELL} ${ARGS} INPUT_FILE ${SCRIPT}
        OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE rc)
endif()
if(NOT rc EQUAL EXPECT_RC)
    message(FATAL_ERROR "exit status ${rc}, expected ${EXPECT_RC}\n${output}")
endif()
if(NOT output STREQUAL expected)
    file(WRITE ${WORK}/actual.txt "${output}")
    execute_process(COMMAND diff -u ${EXPECTED} ${WORK}/actual.txt OUTPUT_VARIABLE diff)
    message(FATAL_ERROR "output differs from ${EXPECTED}:\n${diff}")
endif()
