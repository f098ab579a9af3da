# What the tests of installed copies share. They are called with BUILD, the build folder; WORK, a folder of their own;
# LIBDIR, where libraries stand below the prefix; DATADIR, where data stand; and what else they name.

# run(command...): stops the test with all output if the command fails; its output stays in run_output.
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    list(JOIN ARGN " " command)
    message(FATAL_ERROR "${command}\n${output}")
  endif()
  set(run_output "${output}" PARENT_SCOPE)
endfunction()

# expect(text pattern what): stops unless the pattern is found in the text.
function(expect text pattern what)
  if(NOT text MATCHES "${pattern}")
    message(FATAL_ERROR "${what}: \"${pattern}\" is not in\n${text}")
  endif()
endfunction()

# install_copy(prefix [component...]): all of the build, or these components of it, in a folder that holds nothing else.
function(install_copy prefix)
  file(REMOVE_RECURSE ${prefix})
  if(NOT ARGN)
    run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix})
  endif()
  foreach(component IN LISTS ARGN)
    run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix} --component ${component})
  endforeach()
endfunction()

# configure_consumer(way prefix version result): configures the outside project, which asks for this version, and puts
# what CMake returned in `result` and its output in `<result>_output`.
function(configure_consumer way prefix version result)
  file(REMOVE_RECURSE ${WORK}/${way})
  set(ENV{PKG_CONFIG_PATH} ${prefix}/${LIBDIR}/pkgconfig)
  execute_process(
    COMMAND ${CMAKE_COMMAND} -G Ninja -S ${CONSUMER} -B ${WORK}/${way} -DWAY=${way} -DWANTED=${version}
            -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF
    RESULT_VARIABLE code
    OUTPUT_VARIABLE output
    ERROR_VARIABLE output)
  set(${result} ${code} PARENT_SCOPE)
  set(${result}_output "${output}" PARENT_SCOPE)
endfunction()

# use_copy(prefix): builds the outside project against the copy by the CMake package and by pkg-config, runs both and
# checks that they took the theme of this copy.
function(use_copy prefix)
  unset(ENV{LD_LIBRARY_PATH})
  file(REAL_PATH ${prefix}/share/ZelCommonView/Themes themes)
  foreach(way package pkgconfig)
    configure_consumer(${way} ${prefix} "" configured)
    if(NOT configured EQUAL 0)
      message(FATAL_ERROR "The outside project does not find the copy by ${way}:\n${configured_output}")
    endif()
    run(${CMAKE_COMMAND} --build ${WORK}/${way})
    run(${WORK}/${way}/consumer)
    string(FIND "${run_output}" "theme ${themes}\n" place)
    if(place EQUAL -1)
      message(FATAL_ERROR "${way} does not lead to the theme in ${themes}:\n${run_output}")
    endif()
    # A program that names no folder takes the one below the prefix that the build was configured with.
    string(FIND "${run_output}" "theme unless told ${DATADIR}/ZelCommonView/Themes/\n" place)
    if(place EQUAL -1)
      message(FATAL_ERROR "${DATADIR} does not lead to the theme without further ado:\n${run_output}")
    endif()
  endforeach()
endfunction()

# files_of(folder result): all files and links below a folder, sorted.
function(files_of folder result)
  file(GLOB_RECURSE files LIST_DIRECTORIES false RELATIVE ${folder} ${folder}/*)
  list(SORT files)
  set(${result} "${files}" PARENT_SCOPE)
endfunction()
