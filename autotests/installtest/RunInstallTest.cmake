# Installs the built project into a scratch prefix, then configures, builds and runs a small host
# project that finds it with find_package(TestWidgetCollection).
file(REMOVE_RECURSE "${WORK_DIR}")
set(prefix "${WORK_DIR}/prefix")

function(run_step description)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${description} failed (${result}):\n${output}")
    endif()
    set(step_output "${output}" PARENT_SCOPE)
endfunction()

run_step("install" "${CMAKE_COMMAND}" --install "${BINARY_DIR}" --prefix "${prefix}")
set(host_flags)
if(HOST_CXX_FLAGS)
    set(host_flags "-DCMAKE_CXX_FLAGS=${HOST_CXX_FLAGS}")
endif()
run_step("configure host" "${CMAKE_COMMAND}" -S "${HOST_SOURCE_DIR}" -B "${WORK_DIR}/build" -G "${GENERATOR}"
         "-DCMAKE_PREFIX_PATH=${prefix}" ${host_flags})
run_step("build host" "${CMAKE_COMMAND}" --build "${WORK_DIR}/build")
# The package finds the Qt it was built with: a host of a Qt 6 build runs on Qt 6.
run_step("list the host's libraries" ldd "${WORK_DIR}/build/installedhost")
if(NOT step_output MATCHES "libQt${QT_MAJOR}Widgets" OR step_output MATCHES "not found")
    message(FATAL_ERROR "the installed host does not use Qt ${QT_MAJOR}:\n${step_output}")
endif()
run_step("run host" "${WORK_DIR}/build/installedhost")
if(NOT step_output MATCHES "buttons: 40")
    message(FATAL_ERROR "the installed panel is incomplete: ${step_output}")
endif()
message(STATUS "installed host: ${step_output}")
