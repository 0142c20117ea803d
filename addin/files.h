// Files as the component uses them: the log, the picture file, the captions.
#pragma once

#include <functional>
#include <string>

namespace pelorin::files {

// Adds to the end with one write, beside other writers; false when that cannot be done.
bool append(const std::string& path, const std::string& bytes);
// Error 53 when the file is missing, 75 when it is there and cannot be read; both name it.
std::string read(const std::string& path);
// Error 75 when the file cannot be written; its old content stands then.
void replace(const std::string& path, const std::string& bytes);
// Replaces the content by what `change` makes of it (of nothing when the file is missing) while
// nobody else does; error 75 when the file cannot be read or written, or is kept busy.
void update(const std::string& path, const std::function<std::string(const std::string&)>& change);

// As the system's functions take it, however long it is.
std::wstring nativeName(const std::string& path);

}  // namespace pelorin::files
