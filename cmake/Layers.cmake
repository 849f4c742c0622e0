# ptk_batches(target SOURCES...): the compiler reads the sources of one folder together, at most eight at a time, each header once: a third of the time of a
# whole build. So no two files of a folder give one private name to different things.
function(ptk_batches target)
  set_target_properties(${target} PROPERTIES UNITY_BUILD ${PTK_BATCHES} UNITY_BUILD_MODE GROUP)
  target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>) # g++ takes a batch's parts for headers, in which a fixture must not be private
  foreach(source ${ARGN})
    cmake_path(GET source PARENT_PATH folder)
    if(NOT folder STREQUAL room) # sources come folder by folder
      set(room ${folder})
      set(count 0)
    endif()
    math(EXPR batch "${count} / 8")
    math(EXPR count "${count} + 1")
    cmake_path(RELATIVE_PATH folder BASE_DIRECTORY ${CMAKE_SOURCE_DIR})
    string(MAKE_C_IDENTIFIER ${folder}_${batch} group)
    set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${group})
  endforeach()
endfunction()

# ptk_layer(model USES ptk_store [PRIVATE libs] [EXCEPT folder]): the static library ptk_model of the sources below src/model (not below its sub-folder
# `folder`), read together in batches, and a check that each of its headers compiles alone.
function(ptk_layer name)
  cmake_parse_arguments(ARG "" "EXCEPT" "USES;PRIVATE" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${name}/*.cpp)
  file(GLOB_RECURSE headers CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${name}/*.h)
  if(ARG_EXCEPT)
    list(FILTER sources EXCLUDE REGEX "/src/${name}/${ARG_EXCEPT}/")
  endif()
  add_library(ptk_${name} STATIC ${sources})
  target_sources(ptk_${name} PUBLIC FILE_SET HEADERS BASE_DIRS ${CMAKE_SOURCE_DIR}/src FILES ${headers})
  target_link_libraries(ptk_${name} PUBLIC ${ARG_USES} PRIVATE ptk_flags ${ARG_PRIVATE})
  set_target_properties(ptk_${name} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
  ptk_batches(ptk_${name} ${sources})
endfunction()

# ptk_draws_pages(target): the module that draws pages beside a program that is not built beside it.
function(ptk_draws_pages target)
  add_dependencies(${target} ptk_pages)
  add_custom_command(TARGET ${target} POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E create_symlink $<TARGET_FILE:ptk_pages> $<TARGET_FILE_DIR:${target}>/$<TARGET_FILE_NAME:ptk_pages> VERBATIM)
endfunction()

# ptk_test(model [USES libs] [EXCEPT sources]): the test program model_tests of tests/model, linking ptk_model and the fixtures only.
function(ptk_test name)
  cmake_parse_arguments(ARG "" "" "USES;EXCEPT" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp)
  list(REMOVE_ITEM sources ${ARG_EXCEPT})
  list(TRANSFORM sources PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
  add_executable(${name}_tests ${sources})
  ptk_batches(${name}_tests ${sources})
  target_link_libraries(${name}_tests PRIVATE ptk_${name} ${ARG_USES} test_support ptk_flags GTest::gmock GTest::gtest_main)
  gtest_discover_tests(${name}_tests DISCOVERY_TIMEOUT 60)
endfunction()
