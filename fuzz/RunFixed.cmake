# Runs a libFuzzer program from the saved inputs for a fixed number of executions. The inputs are
# handed over as seeds, not as corpus folders, so that the fuzzer writes nothing back and the next
# run starts from the same inputs. Arguments: FUZZER, OPTIONS (a list), INPUTS (folders).
set(seeds "")
foreach(folder ${INPUTS})
    file(GLOB files LIST_DIRECTORIES false ${folder}/*)
    list(SORT files)
    list(APPEND seeds ${files})
endforeach()
string(REPLACE ";" "," seeds "${seeds}")
execute_process(COMMAND ${FUZZER} ${OPTIONS} -seed_inputs=${seeds} -print_final_stats=1 RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "the fuzzer stopped with ${result}")
endif()
