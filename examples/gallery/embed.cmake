# Writes the texts of all sources in FOLDER into the C++ file OUT, which defines gallery::sourceOf.
# Each byte becomes an escape, so that nothing in a text can end its literal.
file(GLOB files ${FOLDER}/*.cpp)
set(entries)
foreach(file IN LISTS files)
  get_filename_component(name ${file} NAME_WE)
  file(READ ${file} text HEX)
  string(LENGTH "${text}" digits)
  math(EXPR length "${digits} / 2")
  string(REGEX REPLACE "([0-9a-f][0-9a-f])" "\\\\x\\1" text "${text}")
  string(APPEND entries "    if (file == \"${name}\")\n        return {\"${text}\", ${length}};\n")
endforeach()
file(WRITE ${OUT}
     "#include \"Pages.h\"\n\nnamespace gallery {\n\nstd::string_view sourceOf(std::string_view file) {\n${entries}"
     "    return {};\n}\n\n} // namespace gallery\n")
