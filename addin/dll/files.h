// Files as the component uses them: the log, the picture file, the captions.
#pragma once

#include <string>

namespace pelorin::files {

// Adds to the end with one write, beside other writers; false when that cannot be done.
bool append(const std::string& path, const std::string& bytes);
// Error 53 when the file is missing or cannot be read.
std::string read(const std::string& path);
// Error 75 when the file cannot be written; its old content stands then.
void replace(const std::string& path, const std::string& bytes);

}  // namespace pelorin::files
