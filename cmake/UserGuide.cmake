# The user's guide beside the program, in a form that every word processor opens.
find_program(PANDOC pandoc REQUIRED)
file(GLOB guide_pictures CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/docs/screenshots/*.png)
set(guide ${CMAKE_BINARY_DIR}/documentation/PTKAdminUserGuide.doc)
add_custom_command(
  OUTPUT ${guide}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/documentation
  COMMAND ${PANDOC} --standalone --from markdown --to rtf --resource-path ${CMAKE_SOURCE_DIR}/docs --output ${guide} ${CMAKE_SOURCE_DIR}/docs/user-guide.md
  DEPENDS ${CMAKE_SOURCE_DIR}/docs/user-guide.md ${guide_pictures}
  COMMENT "Writing the user's guide"
  VERBATIM)
add_custom_target(user_guide ALL DEPENDS ${guide})
