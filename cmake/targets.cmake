# The kinds of target that all folders share. A folder says which kind it is and what it uses; its sources are the .cpp
# files that lie in it.

# What only tests run is compiled for a quick build: without optimization, and sanitized for addresses alone.
define_property(TARGET PROPERTY QOR_TEST_CODE INITIALIZE_FROM_VARIABLE QOR_TEST_CODE)

add_library(qor_options INTERFACE)
target_compile_options(qor_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor
  -Woverloaded-virtual -Wduplicated-cond -Wlogical-op -Werror
  -Wno-restrict)  # g++ 12 sees an overlap in any "text" + std::string
target_include_directories(qor_options INTERFACE ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR})
if(QOR_SANITIZE)
  # g++ 12 takes the sanitizers' own code for uses of uninitialized values.
  target_compile_options(qor_options INTERFACE -fsanitize=address -fno-omit-frame-pointer -Wno-maybe-uninitialized
    $<$<NOT:$<BOOL:$<TARGET_PROPERTY:QOR_TEST_CODE>>>:-fsanitize=undefined$<SEMICOLON>-fno-sanitize=vptr$<SEMICOLON>-fno-sanitize-recover=undefined>)
  target_link_options(qor_options INTERFACE -fsanitize=address,undefined)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=libasan.so OUTPUT_VARIABLE sanitizer
    OUTPUT_STRIP_TRAILING_WHITESPACE)
  target_compile_definitions(qor_options INTERFACE QOR_SANITIZER="${sanitizer}")
endif()

# qor_library(name [DEPENDS libraries...]): a static library
function(qor_library name)
  cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp)
  add_library(${name} STATIC ${sources})
  target_link_libraries(${name} PUBLIC qor_options ${ARG_DEPENDS})
  qor_share_precompiled(${name})
endfunction()

# Tests by property, where rapidcheck is: Debian has none that a cross compiler could link.
add_library(qor_rapidcheck INTERFACE)
if(WIN32)
  target_compile_options(qor_rapidcheck INTERFACE -Wno-unused-function)  # what only those tests use
else()
  target_compile_definitions(qor_rapidcheck INTERFACE QOR_RAPIDCHECK)
  target_link_libraries(qor_rapidcheck INTERFACE rapidcheck)
endif()

# qor_test(name [DEPENDS libraries...]): a doctest program, run by ./test
function(qor_test name)
  cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp)
  add_executable(test_${name} ${sources})
  target_link_libraries(test_${name} PRIVATE qor_options qor_test_main ${ARG_DEPENDS})
  qor_share_precompiled(test_${name})
  add_test(NAME ${name} COMMAND test_${name})
endfunction()
