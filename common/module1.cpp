#include "common/module1.h"

#include <algorithm>
#include <utility>

#include "base/current_error.h"
#include "base/text_key.h"
#include "common/guard.h"

namespace pelorin {

namespace {

constexpr unsigned iniBufferCharacters = 200;
constexpr int reportBoxesOfAct = 10;
constexpr std::size_t charactersOfBox = 2000;

template <class Reference>
std::shared_ptr<Reference> required(const std::shared_ptr<Reference>& reference,
                                    const SourceLine& where) {
  if (!reference) {
    throw RunTimeError(error_number::objectNotSet, "Object variable or With block variable not set",
                       where.line());
  }
  return reference;
}

// A database's description may have several lines; a report is one line of the log.
std::string inOneLine(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
  return text;
}

// Whole characters of UTF-8.
std::string firstCharacters(const std::string& text, std::size_t count) {
  std::size_t end = 0;
  for (; end < text.size(); ++end) {
    const bool starts = (static_cast<unsigned char>(text[end]) & 0xC0) != 0x80;
    if (starts && count-- == 0) break;
  }
  return text.substr(0, end);
}

std::string moreErrors(int count, const char* what) {
  return std::to_string(count) + " more errors " + what + " Pelorin.txt.";
}

}  // namespace

Module1::Module1(Screen& screen, Environment& environment)
    : screen_(screen), environment_(environment) {
  screen_.acts().onEnded = [this] { actEnded(); };
}

Module1::~Module1() {
  screen_.acts().onEnded = nullptr;
}

void Module1::setDBConnection(std::shared_ptr<Connection> database) {
  database_ = std::move(database);
  connectionLost_ = false;
}

std::shared_ptr<HostServices> Module1::NTConnection(SourceLine where) const {
  return required(services_, where);
}

std::shared_ptr<Connection> Module1::DBConnection(SourceLine where) const {
  if (connectionLost_) throw AlreadyReported();
  return required(database_, where);
}

void Module1::ReportError(std::string_view procedure, const RunTimeError& error) noexcept {
  const Act act(screen_.acts());
  connectionLost_ = connectionLost_ || error.connectionLost();
  try {
    const std::string text = std::string(procedure) + ": Line: " + std::to_string(error.line()) +
                             " :" + error.description();
    showReport(text, LogError(text));
  } catch (...) {
    // Nothing is left that could tell the operator.
    return;
  }
}

void Module1::showReport(const std::string& text, bool logged) {
  if (ofAct_.shown == reportBoxesOfAct) {
    ++(logged ? ofAct_.onlyLogged : ofAct_.lost);
    return;
  }
  ++ofAct_.shown;
  screen_.messageBox(
      BoxRequest{firstCharacters(text, charactersOfBox), BoxIcon::Critical, BoxButtons::Ok});
}

void Module1::actEnded() noexcept {
  connectionLost_ = false;
  const ReportsOfAct reports = std::exchange(ofAct_, {});
  errorOf([&] {
    std::string text;
    if (reports.onlyLogged > 0) text = moreErrors(reports.onlyLogged, "were written to");
    if (reports.lost > 0) {
      text += text.empty() ? "" : "\r\n";
      text += moreErrors(reports.lost, "could not be written to");
    }
    if (!text.empty()) screen_.messageBox(BoxRequest{text, BoxIcon::Critical, BoxButtons::Ok});
  });
}

bool Module1::LogError(const std::string& message) noexcept {
  try {
    return environment_.appendLine(environment_.componentFolder() + "\\Pelorin.txt",
                                   environment_.dateTimeText() + ": " + inOneLine(message));
  } catch (...) {
    return false;
  }
}

std::string Module1::GRS(std::int32_t id, const Substitutions& texts) noexcept {
  return tryGRS(id, texts).value_or(std::string());
}

std::optional<std::string> Module1::tryGRS(std::int32_t id, const Substitutions& texts) noexcept {
  return guardedOr(*this, "MPublic: GRS", std::optional<std::string>(), [&] {
    return texts.front().empty() ? NTConnection()->GetResourceString(id)
                                 : NTConnection()->GRS(id, texts);
  });
}

bool Module1::MyPermissionGranted(std::int16_t componentType,
                                  const std::string& subPermission) noexcept {
  return guardedOr(*this, "Module1.MyPermissionGranted", false,
                   [&] { return NTConnection()->canView(componentType, subPermission); });
}

std::string Module1::ReadIniValue(const std::string& file, const std::string& section,
                                  const std::string& key) const noexcept {
  std::string value = "NOTINITIALIZED";
  errorOf([&] {
    value = environment_.privateProfileString(section, key, value, iniBufferCharacters + 1, file);
  });
  return value;
}

std::string Module1::GetCCTVActionName(std::int16_t action) {
  switch (action) {
    case 1:
      return GRS(1677);
    case 2:
      return GRS(1675);
    case 3:
      return GRS(1821);
    default:
      return {};
  }
}

void Module1::inform(const std::string& text) {
  screen_.messageBox(BoxRequest{text, BoxIcon::Information, BoxButtons::Ok});
}

std::int16_t DeviceClassIdFromName(std::string_view name) {
  if (equalNoCase(name, "CCTV")) return device_class::cctv;
  if (equalNoCase(name, "DVR") || equalNoCase(name, "DVR / NVR")) return device_class::dvr;
  return 0;
}

std::string FirstWord(std::string_view text) {
  return std::string(text.substr(0, text.find(' ')));
}

}  // namespace pelorin
