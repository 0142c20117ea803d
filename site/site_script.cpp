// site-script: writes the scripts that make a site on SQL Server.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "base/run_time_error.h"
#include "site/large_site.h"
#include "site/server_scripts.h"

namespace {

using pelorin::RunTimeError;
using pelorin::SiteSize;
using pelorin::site::ServerScript;

constexpr const char* usage =
    "site-script <folder> [--bare | --controllers N --locations N --triggers N --events N]\n"
    "Writes the scripts for the demonstration site, for a site without hardware, or for a\n"
    "generated one.\n";

int numberOf(const std::string& text) {
  if (text.empty() || text.size() > 8 ||
      text.find_first_not_of("0123456789") != std::string::npos) {
    throw RunTimeError(pelorin::error_number::invalidPropertyValue,
                       "'" + text + "' is not a number.");
  }
  return std::stoi(text);
}

pelorin::SiteFilling fillingFrom(const std::vector<std::string>& options) {
  if (options.empty()) return pelorin::demonstrationSite;
  if (options.size() == 1 && options[0] == "--bare") return pelorin::bareSite;
  SiteSize size;
  const std::map<std::string, int*> numbers{{"--controllers", &size.controllers},
                                            {"--locations", &size.locations},
                                            {"--triggers", &size.triggers},
                                            {"--events", &size.events}};
  for (std::size_t at = 0; at < options.size(); at += 2) {
    const auto number = numbers.find(options[at]);
    if (number == numbers.end() || at + 1 == options.size()) {
      throw RunTimeError(pelorin::error_number::invalidPropertyValue,
                         "'" + options[at] + "' is not understood.\n" + usage);
    }
    *number->second = numberOf(options[at + 1]);
  }
  return largeSite(size);
}

void write(const std::filesystem::path& folder, const ServerScript& script) {
  std::ofstream file(folder / script.name, std::ios::binary);
  file << "-- " << script.purpose << "\n";
  script.batches([&file](const std::string& batch) {
    file << batch << (batch.ends_with('\n') ? "go\n" : "\ngo\n");
  });
  file.close();
  if (!file) {
    throw RunTimeError(pelorin::error_number::internalError,
                       "'" + (folder / script.name).string() + "' cannot be written.");
  }
  std::cout << (folder / script.name).string() << "\n";
}

int run(const std::vector<std::string>& arguments) {
  if (arguments.empty() || arguments[0].starts_with("-")) {
    std::cerr << usage;
    return EXIT_FAILURE;
  }
  const std::filesystem::path folder = arguments[0];
  const auto scripts =
      pelorin::site::serverScripts(fillingFrom({arguments.begin() + 1, arguments.end()}));
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  for (const ServerScript& script : scripts) write(folder, script);
  return EXIT_SUCCESS;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return run({argv + 1, argv + argc});
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return EXIT_FAILURE;
  }
}
