# Run by cpack when the files of a package are laid out. A .deb gets what stands outside its folder
# in /opt: links to the programs, man pages, the entry in the desktop's menu with its icon, and the
# copyright file.
if(NOT CPACK_GENERATOR STREQUAL "DEB")
  return()
endif()

set(root ${CPACK_TEMPORARY_DIRECTORY})
set(source ${CPACK_QUORVANE_SOURCE_FOLDER})
set(linux ${source}/packaging/linux)

foreach(program quorvane quorvane-check)
  if(NOT EXISTS ${root}/opt/quorvane/bin/${program})
    message(FATAL_ERROR "The package has no ${program}: build it with QUORVANE_DESKTOP on.")
  endif()
  file(MAKE_DIRECTORY ${root}/usr/bin ${root}/usr/share/man/man1)
  file(CREATE_LINK /opt/quorvane/bin/${program} ${root}/usr/bin/${program} SYMBOLIC)
  # Without the time, so that the same page gives the same file.
  execute_process(COMMAND gzip --best --no-name --stdout ${linux}/${program}.1
    OUTPUT_FILE ${root}/usr/share/man/man1/${program}.1.gz
    COMMAND_ERROR_IS_FATAL ANY)
endforeach()

set(modes FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
file(COPY ${linux}/quorvane.desktop DESTINATION ${root}/usr/share/applications ${modes})
file(COPY ${source}/apps/quorvane/quorvane.svg
  DESTINATION ${root}/usr/share/icons/hicolor/scalable/apps ${modes})
file(MAKE_DIRECTORY ${root}/usr/share/doc/quorvane)
configure_file(${source}/LICENSE ${root}/usr/share/doc/quorvane/copyright COPYONLY)
