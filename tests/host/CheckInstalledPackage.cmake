# Installs the built tree into a scratch prefix, then configures, builds and runs a host project that
# uses find_package(tq) against it.
file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)

function(run)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "Failed: ${ARGV}\n${out}\n${err}")
  endif()
  set(last_output "${out}" PARENT_SCOPE)
endfunction()

run(${CMAKE_COMMAND} --install ${TQ_BUILD_DIR} --prefix ${prefix})
# Only public headers: the engine's template definitions stay inside the library.
foreach(header tq/tq.h tq/prm/Parameter.h tq/prm/NumericParameter.h tq/prm/set/ParameterSet.h)
  if(NOT EXISTS ${prefix}/include/${header})
    message(FATAL_ERROR "Public header not installed: ${header}")
  endif()
endforeach()
foreach(header tq/prm/ParameterImpl.h tq/prm/NumericParameterImpl.h tq/clip/LookupTableDetail.h)
  if(EXISTS ${prefix}/include/${header})
    message(FATAL_ERROR "Internal header installed: ${header}")
  endif()
endforeach()
run(${CMAKE_COMMAND} -S ${CONSUMER_SOURCE_DIR} -B ${WORK_DIR}/consumer -G ${CMAKE_GENERATOR}
    -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_CXX_COMPILER=${CXX_COMPILER})
run(${CMAKE_COMMAND} --build ${WORK_DIR}/consumer)
run(${WORK_DIR}/consumer/tq_consumer)
if(NOT last_output MATCHES "consumer ok")
  message(FATAL_ERROR "Unexpected output: ${last_output}")
endif()
