// The services that every window uses: the references the host handed over, the error report and
// its log file, resource texts, the permission check, settings files.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "common/environment.h"
#include "common/host_services.h"
#include "controls/screen.h"
#include "database/connection.h"

namespace pelorin {

class Module1 {
 public:
  // The only one on its screen.
  Module1(Screen& screen, Environment& environment);
  Module1(const Module1&) = delete;
  Module1& operator=(const Module1&) = delete;
  ~Module1();

  // Set by the host, at any time; used from the next statement on. Null is nothing.
  void setNTConnection(std::shared_ptr<HostServices> services) { services_ = std::move(services); }
  void setDBConnection(std::shared_ptr<Connection> database);

  // Leaves nothing here.
  void handReferencesTo(Module1& other) noexcept {
    other.services_ = std::exchange(services_, nullptr);
    other.setDBConnection(std::exchange(database_, nullptr));
  }

  // Error 91 when the host gave none. Hold the result only for one call. The database of a lost
  // connection is AlreadyReported, so that the load or save ends that noticed it.
  std::shared_ptr<HostServices> NTConnection(SourceLine where = SourceLine::current()) const;
  std::shared_ptr<Connection> DBConnection(SourceLine where = SourceLine::current()) const;

  Screen& screen() const noexcept { return screen_; }
  Environment& environment() const noexcept { return environment_; }

  // Appends the report to the log file and shows it in a critical message box, its first 2,000
  // characters at most. Never throws; when the log cannot be written the box is shown all the same.
  // One act shows ten of these boxes; at its end one box says how many more there were.
  void ReportError(std::string_view procedure, const RunTimeError& error) noexcept;
  // True from the report of a lost connection to the end of the act, unless the host gives another
  // connection: a load that goes through rows ends.
  bool connectionLost() const noexcept { return connectionLost_; }
  // Appends one line to the log file; false when it cannot be written.
  bool LogError(const std::string& message) noexcept;

  // Resource text from the host; empty after an error (reported as "MPublic: GRS").
  std::string GRS(std::int32_t id, const Substitutions& texts = {}) noexcept;
  // The same, but nothing after an error: an empty text is what the host answered.
  std::optional<std::string> tryGRS(std::int32_t id, const Substitutions& texts = {}) noexcept;
  // False after an error (reported as "Module1.MyPermissionGranted").
  bool MyPermissionGranted(std::int16_t componentType, const std::string& subPermission) noexcept;
  // At most 200 characters; "NOTINITIALIZED" when file, section or key is missing or cannot be
  // read.
  std::string ReadIniValue(const std::string& file, const std::string& section,
                           const std::string& key) const noexcept;
  // Display name of a CCTV action, empty for an unknown one.
  std::string GetCCTVActionName(std::int16_t action);

  // Information icon, OK button.
  void inform(const std::string& text);

 private:
  void showReport(const std::string& text, bool logged);
  void actEnded() noexcept;

  Screen& screen_;
  Environment& environment_;
  std::shared_ptr<HostServices> services_;
  std::shared_ptr<Connection> database_;

  // Of the act that is under way.
  struct ReportsOfAct {
    int shown = 0;
    int onlyLogged = 0;
    int lost = 0;  // neither shown nor logged
  };
  ReportsOfAct ofAct_;
  bool connectionLost_ = false;
};

// The device classes a trigger action can act on.
namespace device_class {
inline constexpr std::int16_t cctv = 999;
inline constexpr std::int16_t dvr = 1;
}  // namespace device_class

// 999 for "CCTV", 1 for "DVR" and "DVR / NVR" in any case, else 0.
std::int16_t DeviceClassIdFromName(std::string_view name);
// The text before the first blank, or all of it.
std::string FirstWord(std::string_view text);

}  // namespace pelorin
