# CLI11 for cross builds: it is headers only, so the build machine's serve. They get a folder of
# their own, because that of all headers of the machine must not be searched.
if(NOT TARGET CLI11::CLI11)
  set(cli11_folder ${CMAKE_BINARY_DIR}/packages/cli11)
  file(MAKE_DIRECTORY ${cli11_folder})
  file(CREATE_LINK /usr/include/CLI ${cli11_folder}/CLI SYMBOLIC)
  add_library(CLI11::CLI11 INTERFACE IMPORTED)
  target_include_directories(CLI11::CLI11 INTERFACE ${cli11_folder})
endif()
