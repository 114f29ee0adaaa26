# GoogleTest for cross builds, from the sources that Debian has in a package. They are not held to
# this project's warnings.
if(NOT TARGET GTest::gtest)
  set(INSTALL_GTEST OFF)
  add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/packages/googletest EXCLUDE_FROM_ALL)
  foreach(library gtest gtest_main gmock)
    target_compile_options(${library} PRIVATE -w)
    get_target_property(headers ${library} INTERFACE_INCLUDE_DIRECTORIES)
    set_target_properties(${library} PROPERTIES
      INTERFACE_SYSTEM_INCLUDE_DIRECTORIES "${headers}")
  endforeach()
endif()
