// The machine: the component's folder, clock and locale, files, settings files.
#pragma once

#include "common/environment.h"

namespace pelorin {

class WindowsEnvironment : public Environment {
 public:
  std::string componentFolder() const override;
  std::string dateTimeText() const override;
  bool appendLine(const std::string& path, const std::string& line) noexcept override;
  std::string privateProfileString(const std::string& section, const std::string& key,
                                   const std::string& fallback, unsigned capacity,
                                   const std::string& file) const override;
  std::string readFile(const std::string& path) const override;
  std::uint64_t milliseconds() const noexcept override;
  void updateFile(const std::string& path, const ContentChange& change) override;
  Picture readPicture(const std::string& path) const override;
};

}  // namespace pelorin
