# What an installation holds, and the packages that are made of it:
#   cmake --install BUILD --prefix FOLDER
#   cpack --config BUILD/CPackConfig.cmake
#
# bin/ has the programs with the schema files beside them (data/CMakeLists.txt), docs/ the manual
# (docs/CMakeLists.txt). The programs look for both from where they stand, so that the folder can be
# moved as a whole.

install(TARGETS quorvane-check RUNTIME DESTINATION bin)
if(TARGET quorvane)
  install(TARGETS quorvane RUNTIME DESTINATION bin)
endif()
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION .)
install(FILES ${PROJECT_SOURCE_DIR}/samples/riverside-delivery.ags DESTINATION samples)
install(FILES ${PROJECT_SOURCE_DIR}/docs/findings.schema.json DESTINATION docs)

set(CPACK_PACKAGE_NAME quorvane)
set(CPACK_PACKAGE_VENDOR Vexo)
set(CPACK_PACKAGE_CONTACT "Vexo <support@vexo.example>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Checks AGS site-investigation data files, versions 3 and 4")
set(CPACK_PACKAGE_DESCRIPTION "\
Quorvane checks files in the AGS data transfer format, versions 3 and
4, against the numbered rules of the format and a data dictionary. It
reports what is wrong, where, and how serious it is. It has a window
and a program for the console.")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)

if(WIN32)
  set(CPACK_GENERATOR ZIP)
  set(CPACK_PACKAGE_FILE_NAME quorvane-${PROJECT_VERSION}-windows-x86_64)
else()
  set(CPACK_GENERATOR DEB TGZ)
  set(CPACK_PACKAGE_FILE_NAME quorvane-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR})
endif()

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS xdg-utils)  # opens reports and the manual

# The archives unpack into one folder of their name. The .deb has its own place and joins the
# desktop.
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_LIST_DIR}/linux/generator-options.cmake)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/linux/join-desktop.cmake)
set(CPACK_QUORVANE_SOURCE_FOLDER ${PROJECT_SOURCE_DIR})

include(CPack)
