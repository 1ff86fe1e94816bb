# Writes the C++ table of all faces: cmake -D NAMES=A,B,... -D FOLDER=... -D TABLE=... -P face_table.cmake
string(REPLACE "," ";" NAMES "${NAMES}")
foreach(name ${NAMES})
  set(row "")
  foreach(form 16-colors 16 24 32 48)
    file(READ ${FOLDER}/${form}/${name}.png bytes HEX)
    string(REGEX REPLACE "(..)" "0x\\1," bytes ${bytes})
    string(MAKE_C_IDENTIFIER "${name}_${form}" array)
    string(APPEND arrays "constexpr unsigned char ${array}[] = {${bytes}};\n")
    list(APPEND row ${array})
  endforeach()
  list(POP_FRONT row sixteen_colors)
  list(JOIN row ", " with_alpha)
  string(APPEND rows "    {u\"${name}\", ${sixteen_colors}, {${with_alpha}}},\n")
endforeach()

file(WRITE ${TABLE} "#include \"resources/face_table.hpp\"

namespace qor {
namespace {

${arrays}
constexpr Face faces[] = {
${rows}};

}  // namespace

std::span<const Face> face_table() noexcept { return faces; }

}  // namespace qor
")
