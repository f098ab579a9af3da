# An installed copy works after it was moved: for an outside project, and its own programs without any environment.
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)

install_copy(${WORK}/before)
file(REMOVE_RECURSE ${WORK}/after)
file(RENAME ${WORK}/before ${WORK}/after)
use_copy(${WORK}/after)

if(PROGRAMS)
  set(viewer ${WORK}/after/bin/zel-record-viewer)
  set(gallery ${WORK}/after/bin/zel-gallery)
  run(${viewer} --info ${RECORD})
  expect("${run_output}" "Demo line 110 kV" "zel-record-viewer --info")
  run(${gallery} --list)
  expect("${run_output}" "panels\t" "zel-gallery --list")

  # The theme and the texts are found beside the programs, which their links lead to.
  run(${viewer} --png ${WORK}/pictures ${RECORD})
  expect("${run_output}" "line-fault[^\n]*\\.png\n" "zel-record-viewer --png")
  run(${gallery} --png ${WORK}/pictures --page about --lang en)
  if(run_output MATCHES "can't be read")
    message(FATAL_ERROR "The installed gallery misses its theme:\n${run_output}")
  endif()
  foreach(text record-viewer/record-viewer-help-en.html record-viewer/eula.txt record-viewer/Themes/style.css
               gallery/gallery-help-en.txt gallery/thirdParty.txt gallery/Themes/style.css)
    if(NOT EXISTS ${WORK}/after/${LIBDIR}/ZelCommonView/${text})
      message(FATAL_ERROR "${text} is not beside its program")
    endif()
  endforeach()
endif()
message(STATUS "The moved copy works")
