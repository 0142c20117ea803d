// The source files of the site database, built into the program so that it needs none beside it.
#pragma once

#include <string_view>
#include <vector>

namespace pelorin::site {

struct EmbeddedFile {
  std::string_view path;  // below site/, with forward slashes
  std::string_view text;
};

// All files, by path. The build writes this function.
const std::vector<EmbeddedFile>& allEmbeddedFiles();
// Those whose path begins with `prefix`.
std::vector<EmbeddedFile> embeddedFiles(std::string_view prefix);

}  // namespace pelorin::site
