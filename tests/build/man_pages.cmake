# The man page tells of each option that the program's own help lists, and of no other.
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/steps.cmake)

run(${PROGRAM} --help)
string(REGEX MATCHALL "--[a-z][a-z-]*" wanted "${run_output}")
file(READ ${PAGE} page)
string(REPLACE "\\-" "-" page "${page}")
# Only what stands at the head of a paragraph is told of here; texts mention options, too.
string(REGEX MATCHALL "\n\\.TP\n[^\n]*--[a-z][a-z-]*" told "${page}")
list(TRANSFORM told REPLACE ".*(--[a-z][a-z-]*)$" "\\1")
foreach(list wanted told)
  list(REMOVE_DUPLICATES ${list})
  list(SORT ${list})
endforeach()
if(wanted STREQUAL "" OR NOT wanted STREQUAL told)
  message(FATAL_ERROR "The help lists ${wanted}, ${PAGE} tells of ${told}")
endif()
message(STATUS "${PAGE} tells of ${told}")
