# ptk_layer(model DIR model USES ptk_store [PRIVATE libs]): the static library ptk_model of the sources in src/model (not its sub-folders),
# and a check that each of its headers compiles alone.
function(ptk_layer name)
  cmake_parse_arguments(ARG "" "DIR" "USES;PRIVATE" ${ARGN})
  set(dir ${CMAKE_SOURCE_DIR}/src/${ARG_DIR})
  file(GLOB sources CONFIGURE_DEPENDS ${dir}/*.cpp)
  file(GLOB headers CONFIGURE_DEPENDS ${dir}/*.h)
  if(name STREQUAL store)
    file(GLOB engines CONFIGURE_DEPENDS ${dir}/engine/*.cpp ${dir}/sqlite/*.cpp ${dir}/postgres/*.cpp)
    file(GLOB engine_headers CONFIGURE_DEPENDS ${dir}/engine/*.h ${dir}/sqlite/*.h ${dir}/postgres/*.h)
    list(APPEND sources ${engines})
    list(APPEND headers ${engine_headers})
  endif()
  add_library(ptk_${name} STATIC ${sources})
  target_sources(ptk_${name} PUBLIC FILE_SET HEADERS BASE_DIRS ${CMAKE_SOURCE_DIR}/src FILES ${headers})
  target_link_libraries(ptk_${name} PUBLIC ${ARG_USES} PRIVATE ptk_flags ${ARG_PRIVATE})
  set_target_properties(ptk_${name} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
endfunction()

# ptk_draws_pages(target): the module that draws pages beside a program that is not built beside it.
function(ptk_draws_pages target)
  add_dependencies(${target} ptk_pages)
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E create_symlink $<TARGET_FILE:ptk_pages> $<TARGET_FILE_DIR:${target}>/$<TARGET_FILE_NAME:ptk_pages> VERBATIM)
endfunction()

# ptk_test(model): the test program model_tests of tests/model, linking ptk_model and the fixtures only.
function(ptk_test name)
  cmake_parse_arguments(ARG "" "" "USES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/${name}/*.cpp)
  add_executable(${name}_tests ${sources})
  target_link_libraries(${name}_tests PRIVATE ptk_${name} ${ARG_USES} test_support ptk_flags GTest::gmock GTest::gtest_main)
  gtest_discover_tests(${name}_tests DISCOVERY_TIMEOUT 60)
endfunction()
