# What `cmake --install` puts where, as the freedesktop and Debian conventions want it. Component "console" needs no display, "admin" is the rest.
include(GNUInstallDirs)

install(TARGETS ptk-console RUNTIME COMPONENT console)
install(TARGETS ptk_pages LIBRARY DESTINATION lib/ptk-console COMPONENT console) # each program's own: either package may be there alone
install(TARGETS ptk-jet-reader RUNTIME DESTINATION libexec/ptk COMPONENT console) # where platform/ProgramFolder looks for it

find_program(PANDOC pandoc REQUIRED)
set(man_page ${CMAKE_BINARY_DIR}/man/ptk-admin.1)
add_custom_command(
  OUTPUT ${man_page}
  COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/man
  COMMAND ${PANDOC} --standalone --from markdown --to man --output ${man_page} ${CMAKE_SOURCE_DIR}/packaging/man/ptk-admin.1.md
  DEPENDS ${CMAKE_SOURCE_DIR}/packaging/man/ptk-admin.1.md
  VERBATIM)
add_custom_target(man_pages ALL DEPENDS ${man_page})
install(FILES ${man_page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 RENAME ptk-console.1 COMPONENT console)
install(FILES packaging/completion.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME ptk-console COMPONENT console)

if(NOT PTK_UI)
  return()
endif()

install(TARGETS ptk-admin RUNTIME COMPONENT admin)
install(TARGETS ptk_pages LIBRARY DESTINATION lib/ptk-admin COMPONENT admin)
install(FILES ${man_page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT admin)
install(FILES packaging/completion.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME ptk-admin COMPONENT admin)
install(FILES packaging/ptk-admin.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT admin)
install(FILES packaging/ptk-admin.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo RENAME com.example.ptk_admin.metainfo.xml COMPONENT admin)
install(FILES ${CMAKE_BINARY_DIR}/documentation/PTKAdminUserGuide.doc ${CMAKE_BINARY_DIR}/documentation/PTKAdminUserGuide.html
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/ptk-admin COMPONENT admin) # where a program folder gets them from

set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES data/icons/ptk-admin.svg DESTINATION ${icons}/scalable/apps COMPONENT admin)
find_program(RSVG_CONVERT rsvg-convert)
if(RSVG_CONVERT)
  foreach(size 16 24 32 48 64 128 256)
    set(icon ${CMAKE_BINARY_DIR}/icons/${size}.png)
    add_custom_command(
      OUTPUT ${icon}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/icons
      COMMAND ${RSVG_CONVERT} --width ${size} --height ${size} --output ${icon} ${CMAKE_SOURCE_DIR}/data/icons/ptk-admin.svg
      DEPENDS ${CMAKE_SOURCE_DIR}/data/icons/ptk-admin.svg
      VERBATIM)
    list(APPEND icon_files ${icon})
    install(FILES ${icon} DESTINATION ${icons}/${size}x${size}/apps RENAME ptk-admin.png COMPONENT admin)
  endforeach()
  add_custom_target(icon_sizes ALL DEPENDS ${icon_files})
endif()
