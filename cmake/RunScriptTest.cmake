# Runs one script through `quarzel --script` and compares what it prints
# with the expected lines. Paths in the script are relative to WORK.
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
set(ENV{QT_QPA_PLATFORM} offscreen)
set(ENV{QUARZEL_INSTANCE} ${INSTANCE})
set(ENV{LC_ALL} C.UTF-8)
execute_process(COMMAND ${EXE} --script ${SCRIPT}
  WORKING_DIRECTORY ${WORK}
  OUTPUT_VARIABLE out ERROR_VARIABLE err RESULT_VARIABLE rc
  TIMEOUT 100)
file(READ ${EXPECTED} expected)
file(WRITE ${WORK}/actual.out "${out}")
if(NOT out STREQUAL expected)
  execute_process(COMMAND diff -u ${EXPECTED} ${WORK}/actual.out OUTPUT_VARIABLE d)
  message(FATAL_ERROR "Output differs from ${EXPECTED}:\n${d}\nstderr:\n${err}")
endif()
# A script whose expected output ends in an error line must end with status 2.
if(expected MATCHES "\"error\":")
  set(want 2)
else()
  set(want 0)
endif()
if(NOT rc STREQUAL want)
  message(FATAL_ERROR "exit status ${rc}, expected ${want}\nstderr:\n${err}")
endif()
