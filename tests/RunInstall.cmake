# Installs korvid into a scratch prefix, then builds and runs a consumer
# through find_package(korvid) and through pkg-config.
set(prefix ${WORK}/prefix)
file(REMOVE_RECURSE ${WORK})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix}
                RESULT_VARIABLE rc OUTPUT_QUIET)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "install failed")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE} -B ${WORK}/consumer
                  -DCMAKE_PREFIX_PATH=${prefix} RESULT_VARIABLE rc OUTPUT_QUIET)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "find_package(korvid) failed")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK}/consumer
                RESULT_VARIABLE rc OUTPUT_QUIET)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "building against the installed korvid failed")
endif()
execute_process(COMMAND ${WORK}/consumer/consumer ${WORK}/out.xml
                RESULT_VARIABLE rc)
if(NOT rc EQUAL 0 OR NOT EXISTS ${WORK}/out.xml)
  message(FATAL_ERROR "consumer did not write its document")
endif()
file(GLOB pcdir ${prefix}/lib*/pkgconfig ${prefix}/lib/*/pkgconfig)
set(ENV{PKG_CONFIG_PATH} "${pcdir}")
execute_process(COMMAND pkg-config --cflags --libs korvid
                OUTPUT_VARIABLE flags RESULT_VARIABLE rc
                OUTPUT_STRIP_TRAILING_WHITESPACE)
if(NOT rc EQUAL 0 OR NOT flags MATCHES "-lkorvidXMLOstrel")
  message(FATAL_ERROR "pkg-config korvid failed: ${flags}")
endif()
