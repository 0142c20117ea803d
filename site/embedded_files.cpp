#include "site/embedded_files.h"

namespace pelorin::site {

std::vector<EmbeddedFile> embeddedFiles(std::string_view prefix) {
  std::vector<EmbeddedFile> files;
  for (const EmbeddedFile& file : allEmbeddedFiles()) {
    if (file.path.starts_with(prefix)) files.push_back(file);
  }
  return files;
}

}  // namespace pelorin::site
