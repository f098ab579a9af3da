# How tests are built: one program for each test file, named after it, linked with the shared library itself.

# The environment of every test: no accessibility bus, no settings daemon, plain input, one slice allocator.
set(ZEL_TEST_ENVIRONMENT
    NO_AT_BRIDGE=1
    GSETTINGS_BACKEND=memory
    GIO_USE_VFS=local
    GTK_IM_MODULE=gtk-im-context-simple
    GTK_THEME=Adwaita
    G_SLICE=always-malloc
    G_DEBUG=gc-friendly
    "ASAN_OPTIONS=detect_leaks=1:detect_stack_use_after_return=1:strict_string_checks=1:check_initialization_order=1:abort_on_error=1"
    "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/lsan.supp:fast_unwind_on_malloc=0:print_suppressions=0"
    "UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1"
    "TSAN_OPTIONS=ignore_noninstrumented_modules=1:halt_on_error=1")

# All tests in which two threads meet: what the thread sanitizer is for.
add_custom_target(zel-thread-tests)

# zel_add_test(folder file.cpp [SOURCES more.cpp...] [LIBRARIES targets...] [LABELS labels...] [PLAIN] [HANDS]
#              [OWN_DISPLAY] [LONG] [LOCALES names...])
# makes the program folder.file. PLAIN is for tests that need neither GTK nor a display. The others share one, save for
# HANDS, those that move the real pointer or press real keys, and OWN_DISPLAY, those that show windows or fill the
# clipboard without hands: each of them has a display of its own, with a window manager for the hands, where nothing
# else gets under the pointer. LOCALES, such as de_DE.UTF-8, runs the program once more in each of these locales, as the
# test folder.file@locale; not for PLAIN ones, and not under the sanitizers, to which a locale is nothing new. LONG is
# for those that take memory millions of times: the address sanitizer notes where memory was taken the quick way there,
# eight times as fast, but sees only the first steps of the way, too few to know some losses of other libraries by,
# such as of the loader of SVG pictures.
function(zel_add_test folder file)
  cmake_parse_arguments(TEST "PLAIN;HANDS;OWN_DISPLAY;LONG" "" "SOURCES;LIBRARIES;LABELS;LOCALES" ${ARGN})
  get_filename_component(stem ${file} NAME_WE)
  string(REGEX REPLACE "_test$" "" stem ${stem})
  set(target ${folder}.${stem})

  add_executable(${target} ${file} ${TEST_SOURCES})
  zel_own_target(${target})
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  # White-box tests call private operations by their names.
  target_compile_options(${target} PRIVATE -fno-access-control)
  if(TEST_PLAIN)
    target_link_libraries(${target} PRIVATE GTest::gmock GTest::gtest GTest::gtest_main ${TEST_LIBRARIES})
  else()
    target_link_libraries(${target} PRIVATE zel-test-support ${TEST_LIBRARIES})
    target_precompile_headers(${target} REUSE_FROM zel-test-pch)
  endif()

  # The sanitizers make a program many times slower.
  set(timeout 300)
  if(ZEL_SANITIZE)
    set(timeout 1800)
  endif()
  set(command ${target})
  if(ZEL_SANITIZE)
    set(TEST_LOCALES)
  endif()
  if(TEST_HANDS)
    set(command ${PROJECT_SOURCE_DIR}/tools/own-display $<TARGET_FILE:${target}>)
  elseif(TEST_OWN_DISPLAY)
    set(command xvfb-run -a -s "-screen 0 1280x1024x24 -noreset" $<TARGET_FILE:${target}>)
  endif()
  foreach(locale "" ${TEST_LOCALES})
    set(name ${target})
    set(environment ${ZEL_TEST_ENVIRONMENT})
    if(TEST_LONG)
      string(REPLACE "fast_unwind_on_malloc=0" "fast_unwind_on_malloc=1" environment "${environment}")
    endif()
    if(locale)
      string(APPEND name "@${locale}")
      list(APPEND environment ZEL_TEST_LOCALE=${locale})
    endif()
    add_test(NAME ${name} COMMAND ${command})
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "${environment}" LABELS "${TEST_LABELS}" TIMEOUT ${timeout})
    if(locale)
      # The machine may have no way to make the locale.
      set_tests_properties(${name} PROPERTIES SKIP_RETURN_CODE 77)
    endif()
  endforeach()
  if("threads" IN_LIST TEST_LABELS)
    add_dependencies(zel-thread-tests ${target})
  endif()
endfunction()
