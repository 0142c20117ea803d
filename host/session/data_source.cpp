#include "host/session/data_source.h"

#include <array>
#include <utility>

#include "host/ado/ado_connection_object.h"
#include "host/core/embedded_connection.h"
#include "host/core/watched_connection.h"
#include "host/odbc/odbc_connection.h"
#include "site/site_database.h"
#include "win32/ado/ado_connection.h"
#include "win32/com/ado_ids.h"
#include "win32/com/com_error.h"
#include "win32/com/late_bound.h"
#include "win32/text/utf16.h"
#include "win32/text/windows_api.h"

namespace pelorin::host {

namespace {

bool exists(const std::string& file) {
  return GetFileAttributesW(toWide(file).c_str()) != INVALID_FILE_ATTRIBUTES;
}

SiteDatabase openOrCreate(const std::string& file) {
  return exists(file) ? SiteDatabase::open(file) : SiteDatabase::create(file, demonstrationSite);
}

ComPtr<IDispatch> connectAdo(const std::string& connectionString) {
  ComPtr<IDispatch> connection;
  check(CoCreateInstance(ado::connectionClass, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                         connection.putVoid()));
  LateBound(connection).call(L"Open", {Variant::text(connectionString)});
  return connection;
}

}  // namespace

std::shared_ptr<ResultConnection> connectOdbc(const std::string& connectionString) {
  return std::make_shared<OdbcConnection>(connectionString);
}

DataSource DataSource::open(const Options& options, std::shared_ptr<StatementLog> log,
                            const OpenConnection& odbc) {
  DataSource source;
  switch (options.source) {
    case Source::EmbeddedDatabase:
      source.openEmbedded(options.database.empty() ? defaultDatabase() : options.database,
                          std::move(log));
      break;
    case Source::OdbcDataSource:
      source.openOdbc(options.connectionString, std::move(log), odbc);
      break;
    case Source::AdoConnection:
      source.openAdo(options.connectionString);
      break;
  }
  return source;
}

void DataSource::offer(std::shared_ptr<ResultConnection> connection,
                       std::shared_ptr<StatementLog> log) {
  connection_ = std::make_shared<WatchedConnection>(std::move(connection), std::move(log));
  ado_ = ComPtr<IDispatch>(makeObject<AdoConnectionObject>(connectOdbc, connection_, name_).get());
}

void DataSource::openEmbedded(const std::string& file, std::shared_ptr<StatementLog> log) {
  const SiteDatabase site = openOrCreate(file);
  name_ = file;
  embedded_ = true;
  another_ = [file]() -> std::shared_ptr<Connection> { return SiteDatabase::open(file).connect(); };
  audit_ = std::make_unique<AuditTrail>(site.auditLog());
  offer(std::make_shared<EmbeddedConnection>(site.session()), std::move(log));
}

void DataSource::openOdbc(const std::string& connectionString, std::shared_ptr<StatementLog> log,
                          const OpenConnection& odbc) {
  name_ = "ODBC data source";
  another_ = [odbc, connectionString] { return odbc(connectionString); };
  std::shared_ptr<ResultConnection> connection = odbc(connectionString);
  // What the host itself writes is not among the component's statements.
  audit_ = std::make_unique<AuditTrail>(AuditTable(connection));
  offer(std::move(connection), std::move(log));
}

void DataSource::openAdo(const std::string& connectionString) {
  name_ = "ADO connection";
  another_ = [connectionString]() -> std::shared_ptr<Connection> {
    return std::make_shared<AdoConnection>(connectAdo(connectionString));
  };
  ado_ = connectAdo(connectionString);
  audit_ = std::make_unique<AuditTrail>(AuditTable(std::make_shared<AdoConnection>(ado_)));
}

std::string defaultDatabase() {
  std::array<wchar_t, MAX_PATH> folder{};
  check(SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA | CSIDL_FLAG_CREATE, nullptr,
                         SHGFP_TYPE_CURRENT, folder.data()));
  const std::wstring own = std::wstring(folder.data()) + L"\\PelorinHost";
  CreateDirectoryW(own.c_str(), nullptr);
  return toUtf8(own + L"\\Demonstration.site");
}

}  // namespace pelorin::host
