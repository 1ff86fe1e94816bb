# What the build for Windows has in common. Programs of the tests run under Wine, with a prefix of this build folder.
set(CMAKE_CROSSCOMPILING_EMULATOR ${PROJECT_SOURCE_DIR}/scripts/wine.sh ${PROJECT_BINARY_DIR}/wine)
add_compile_definitions(UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN STRICT _WIN32_WINNT=0x0601)
# The compiler's own libraries go into what is built, so that it needs the system's only; what nobody uses stays out.
set(CMAKE_CXX_FLAGS_RELEASE "-Os -DNDEBUG")
add_compile_options(-ffunction-sections -fdata-sections)
add_link_options(-static -Wl,--gc-sections)

# A library of headers alone from the build machine, as the package of that name. Its other headers stay unseen.
function(qor_headers target folder)
  set(headers ${PROJECT_BINARY_DIR}/headers)
  file(MAKE_DIRECTORY ${headers})
  if(NOT EXISTS /usr/include/${folder})
    message(FATAL_ERROR "/usr/include/${folder} is missing")
  endif()
  file(CREATE_LINK /usr/include/${folder} ${headers}/${folder} SYMBOLIC)
  add_library(${target} INTERFACE IMPORTED GLOBAL)
  target_include_directories(${target} SYSTEM INTERFACE ${headers})
endfunction()
qor_headers(nlohmann_json::nlohmann_json nlohmann)
qor_headers(qor_doctest doctest)

# Interfaces of COM have no virtual destructor by their nature.
target_compile_options(qor_options INTERFACE -Wno-non-virtual-dtor)
