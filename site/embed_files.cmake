# cmake -D ROOT=<folder> -D OUTPUT=<file.cpp> -D FILES=<a|b|...> -P embed_files.cmake
# Writes the named files of ROOT as text constants into one source file.
string(REPLACE "|" ";" files "${FILES}")
set(entries "")
foreach(name IN LISTS files)
  file(READ "${ROOT}/${name}" text)
  string(APPEND entries "      {\"${name}\",\n       R\"~~~~(${text})~~~~\"},\n")
endforeach()
file(WRITE "${OUTPUT}" "#include \"site/embedded_files.h\"\n
namespace pelorin::site {\n
const std::vector<EmbeddedFile>& allEmbeddedFiles() {
  static const std::vector<EmbeddedFile> files{
${entries}  };
  return files;
}\n
}  // namespace pelorin::site
")
