// The embedded site database: the tables, procedures and data of a site in one file or in memory.
//
//   auto site = SiteDatabase::create("demo.site", demonstrationSite);
//   std::unique_ptr<Connection> connection = site.connect();
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "site/audit_log.h"
#include "site/site_session.h"

namespace pelorin {

namespace site {
class RowSink;
}

// Sends the rows of a site.
using SiteFilling = std::function<void(site::RowSink&)>;

// Tables without rows.
void emptySite(site::RowSink& rows);
// The event catalogue and device classes every site has, without hardware and triggers.
void bareSite(site::RowSink& rows);
// The bare site with hardware, devices and triggers to try everything on.
void demonstrationSite(site::RowSink& rows);

class SiteDatabase {
 public:
  // Makes a new file; nothing is left behind when that fails. Paths are UTF-8. Errors say in one
  // sentence what is wrong with which file; an existing file is never touched.
  static SiteDatabase create(const std::string& path, const SiteFilling& filling);
  // Opens an existing one. Errors: there is none, it is no database or not a site's, damaged,
  // locked, read-only, made by a newer version.
  static SiteDatabase open(const std::string& path);
  static SiteDatabase inMemory(const SiteFilling& filling);
  // Another one in memory with the same rows, for a fraction of what filling it takes.
  SiteDatabase copyInMemory() const;

  // What the host gives to its statement view and its ADO objects; one session per database.
  const std::shared_ptr<SiteSession>& session() const { return session_; }
  // The component's connection; keeps the database open.
  std::unique_ptr<Connection> connect() const { return connectionOver(session_); }
  AuditLog auditLog() const { return AuditLog(engine_); }

 private:
  explicit SiteDatabase(std::shared_ptr<site::Engine> engine);

  std::shared_ptr<site::Engine> engine_;
  std::shared_ptr<SiteSession> session_;
};

}  // namespace pelorin
