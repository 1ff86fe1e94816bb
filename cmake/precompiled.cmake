# Headers of others that most sources of a kind read anyway are compiled once for each kind. A folder says by
# QOR_PRECOMPILED which of these its targets share. Sources include what they use all the same: the build for Windows,
# which has no such headers, and the lint see to it.
#
# qor_precompiled(name USES libraries... HEADERS headers...)
function(qor_precompiled name)
  cmake_parse_arguments(ARG "" "" "USES;HEADERS" ${ARGN})
  set(source ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  file(CONFIGURE OUTPUT ${source} CONTENT "")
  add_library(${name} OBJECT ${source})
  target_link_libraries(${name} PRIVATE qor_options ${ARG_USES})
  list(TRANSFORM ARG_HEADERS REPLACE "(.+)" "<\\1>")
  target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
  target_compile_options(${name} PRIVATE -fpch-preprocess)  # for ccache
endfunction()

# qor_share_precompiled(target): the target reads the precompiled headers of its folder's kind.
function(qor_share_precompiled target)
  if(NOT WIN32 AND QOR_PRECOMPILED)
    target_precompile_headers(${target} REUSE_FROM ${QOR_PRECOMPILED})
    # g++ 12 forgets which precompiled headers are the system's, and warns of what it takes for overflows in them.
    target_compile_options(${target} PRIVATE
      -fpch-preprocess -Wno-array-bounds -Wno-stringop-overread -Wno-stringop-overflow)
  endif()
endfunction()

set(qor_standard_headers algorithm array cstdint functional map memory optional set span sstream string string_view
  utility variant vector)
set(qor_office_headers com/sun/star/beans/XPropertySet.hpp com/sun/star/container/XNameAccess.hpp
  com/sun/star/frame/XController.hpp com/sun/star/frame/XModel.hpp com/sun/star/lang/XServiceInfo.hpp
  com/sun/star/sheet/XSpreadsheet.hpp com/sun/star/sheet/XSpreadsheetDocument.hpp
  com/sun/star/table/CellRangeAddress.hpp com/sun/star/uno/XComponentContext.hpp rtl/ustring.hxx)
