# The user's guide beside the program: as a document for word processors, and as one page, pictures included, for every browser.
find_program(PANDOC pandoc REQUIRED)
file(GLOB guide_pictures CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/docs/screenshots/*.png)
set(guide ${CMAKE_BINARY_DIR}/documentation/PTKAdminUserGuide)
function(user_guide ending)
  add_custom_command(
    OUTPUT ${guide}.${ending}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/documentation
    COMMAND ${PANDOC} --standalone --from markdown ${ARGN} --resource-path ${CMAKE_SOURCE_DIR}/docs --output ${guide}.${ending} ${CMAKE_SOURCE_DIR}/docs/user-guide.md
    DEPENDS ${CMAKE_SOURCE_DIR}/docs/user-guide.md ${guide_pictures}
    COMMENT "Writing the user's guide (${ending})"
    VERBATIM)
endfunction()
user_guide(doc --to rtf)
user_guide(html --to html5 --self-contained --toc --toc-depth 2 --metadata lang=en-US)
add_custom_target(user_guide ALL DEPENDS ${guide}.doc ${guide}.html)
