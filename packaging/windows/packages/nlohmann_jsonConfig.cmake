# nlohmann-json for cross builds, in the way of CLI11: headers of the build machine in a folder of
# their own.
if(NOT TARGET nlohmann_json::nlohmann_json)
  set(nlohmann_json_folder ${CMAKE_BINARY_DIR}/packages/nlohmann_json)
  file(MAKE_DIRECTORY ${nlohmann_json_folder})
  file(CREATE_LINK /usr/include/nlohmann ${nlohmann_json_folder}/nlohmann SYMBOLIC)
  add_library(nlohmann_json::nlohmann_json INTERFACE IMPORTED)
  target_include_directories(nlohmann_json::nlohmann_json INTERFACE ${nlohmann_json_folder})
endif()
