# One helper registers every test of the project.
#   quarzel_add_test(NAME <name> KIND unit|gui SOURCES <files...>)
#   quarzel_add_script_test(<script.qzs>)   expects <script>.out beside it
include(GoogleTest)

# Instance keys differ per build tree, so two trees can run their suites at once.
string(MD5 QUARZEL_TREE_ID ${CMAKE_BINARY_DIR})
string(SUBSTRING ${QUARZEL_TREE_ID} 0 8 QUARZEL_TREE_ID)

function(quarzel_add_test)
  cmake_parse_arguments(T "" "NAME;KIND" "SOURCES" ${ARGN})
  add_executable(${T_NAME} ${T_SOURCES})
  target_include_directories(${T_NAME} PRIVATE ${CMAKE_SOURCE_DIR}/tests ${CMAKE_SOURCE_DIR}/tests/gui)
  if(T_KIND STREQUAL "unit")
    target_link_libraries(${T_NAME} PRIVATE quarzel_core GTest::gtest GTest::gtest_main)
    gtest_discover_tests(${T_NAME} DISCOVERY_MODE PRE_TEST
      PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
  else()
    target_link_libraries(${T_NAME} PRIVATE quarzel_ui Qt6::Test)
    add_dependencies(${T_NAME} quarzel quarzel_data)
    add_test(NAME ${T_NAME} COMMAND ${T_NAME})
    set_tests_properties(${T_NAME} PROPERTIES
      ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QUARZEL_INSTANCE=test-${T_NAME}-${QUARZEL_TREE_ID};QUARZEL_APPDIR=${CMAKE_BINARY_DIR};QUARZEL_EXE=$<TARGET_FILE:quarzel>"
      TIMEOUT 120)
    if(QUARZEL_SANITIZE)
      # LeakSanitizer's own tracer crashes at the exit of some Qt Test
      # programs (threads of Qt's print support still running); address and
      # undefined-behaviour checks stay on, leaks are checked in the unit
      # and script tests.
      set_property(TEST ${T_NAME} APPEND PROPERTY ENVIRONMENT "ASAN_OPTIONS=detect_leaks=0:abort_on_error=1")
    endif()
  endif()
endfunction()

function(quarzel_add_script_test script)
  get_filename_component(base ${script} NAME_WE)
  get_filename_component(dir ${script} DIRECTORY)
  set(name script_${base})
  set(work ${CMAKE_BINARY_DIR}/script-work/${base})
  add_test(NAME ${name}
    COMMAND ${CMAKE_COMMAND}
      -DEXE=$<TARGET_FILE:quarzel> -DSCRIPT=${script} -DEXPECTED=${dir}/${base}.out
      -DWORK=${work} -DINSTANCE=script-${base}-${QUARZEL_TREE_ID}
      -P ${CMAKE_SOURCE_DIR}/cmake/RunScriptTest.cmake)
  set_tests_properties(${name} PROPERTIES TIMEOUT 120)
endfunction()
