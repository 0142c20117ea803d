// One value of a settings file.
#pragma once

#include <string>

namespace pelorin {

struct ProfileQuery {
  std::string section;
  std::string key;
  std::string fallback;
  std::string file;
};

// GetPrivateProfileStringA, whose file holds text of the ANSI code page; the W call only for names
// that the code page cannot express. At most `capacity` - 1 characters.
std::string readPrivateProfile(const ProfileQuery& query, unsigned capacity);

}  // namespace pelorin
