# LibreOffice's interfaces as the target qor_uno. The C++ headers of its API are generated once per build folder.
set(LIBREOFFICE_HOME /usr/lib/libreoffice CACHE PATH "Where LibreOffice is installed")
set(libreoffice_sdk ${LIBREOFFICE_HOME}/sdk)
set(libreoffice_program ${LIBREOFFICE_HOME}/program)
set(uno_headers ${PROJECT_BINARY_DIR}/uno-headers)

add_custom_command(OUTPUT ${uno_headers}/.complete
  COMMAND ${CMAKE_COMMAND} -E make_directory ${uno_headers}
  COMMAND ${libreoffice_sdk}/bin/cppumaker -Gc -O${uno_headers} ${libreoffice_program}/types.rdb
          ${libreoffice_program}/types/offapi.rdb
  COMMAND ${CMAKE_COMMAND} -E touch ${uno_headers}/.complete
  COMMENT "Generating LibreOffice's API headers" VERBATIM)
add_custom_target(qor_uno_headers DEPENDS ${uno_headers}/.complete)

add_library(qor_uno INTERFACE)
add_dependencies(qor_uno qor_uno_headers)
target_include_directories(qor_uno SYSTEM INTERFACE ${libreoffice_sdk}/include ${uno_headers})
target_compile_definitions(qor_uno INTERFACE UNX GCC LINUX CPPU_ENV=gcc3
  QOR_LIBREOFFICE_PROGRAM="${libreoffice_program}")
target_link_directories(qor_uno INTERFACE ${libreoffice_sdk}/lib ${libreoffice_program})
target_link_libraries(qor_uno INTERFACE uno_cppuhelpergcc3 uno_cppu uno_sal uno_salhelpergcc3)
target_link_options(qor_uno INTERFACE -Wl,-rpath,${libreoffice_program})
