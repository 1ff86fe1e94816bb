# Writes OUTPUT, a C++ source with the function qor::wx::FUNCTION, which gives the texts of the files LAYOUTS, each by
# its file's name without the ending.
set(rows "")
foreach(layout ${LAYOUTS})
  get_filename_component(form ${layout} NAME_WE)
  file(READ ${layout} text)
  string(APPEND rows "    {u\"${form}\", R\"xrc(${text})xrc\"},\n")
endforeach()
file(WRITE ${OUTPUT} "#include \"screens/wx/layout.hpp\"

namespace qor::wx {

const Layouts& ${FUNCTION}();

const Layouts& ${FUNCTION}() {
  static const Layouts table{
${rows}  };
  return table;
}

}  // namespace qor::wx
")
