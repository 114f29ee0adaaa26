# What Windows reads of a program before it starts it: the manifest (UTF-8 as the program's code
# page, long paths, sharp drawing on every screen, the current look of the controls), the version
# and, when a file of it is named, the icon.
include_guard(GLOBAL)

function(quorvane_windows_resources target description)
  set(folder ${CMAKE_CURRENT_FUNCTION_LIST_DIR})
  set(manifest ${folder}/program.manifest)
  set(icon_line)
  if(ARGN)
    set(icon_line "1 ICON \"${ARGN}\"")
  endif()
  set(number ${PROJECT_VERSION_MAJOR},${PROJECT_VERSION_MINOR},${PROJECT_VERSION_PATCH},${PROJECT_VERSION_TWEAK})
  set(text)
  foreach(part ${PROJECT_VERSION_MAJOR} ${PROJECT_VERSION_MINOR} ${PROJECT_VERSION_PATCH} ${PROJECT_VERSION_TWEAK})
    if(part LESS 10)
      set(part 0${part})
    endif()
    list(APPEND text ${part})
  endforeach()
  list(JOIN text . text)
  configure_file(${folder}/program.rc.in ${target}.rc @ONLY)
  set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/${target}.rc PROPERTIES
    OBJECT_DEPENDS "${manifest};${ARGN}")
  target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
endfunction()

# A build with a Qt of its own is one for a package.
set(QUORVANE_WINDOWS_QT "" CACHE PATH "The Qt that the desktop program is linked with")
if(QUORVANE_WINDOWS_QT)
  include(${CMAKE_CURRENT_LIST_DIR}/licences.cmake)
endif()
