// The reference host loads the component and opens its database.
#include "host/session/component.h"

#include <gtest/gtest.h>

#include "host/session/data_source.h"
#include "tests/windows/host/program.h"

namespace pelorin::test {
namespace {

std::string complaint(const std::function<void()>& work) {
  try {
    work();
  } catch (const RunTimeError& error) {
    return error.description();
  }
  return "none";
}

TEST(LoadingTheComponent, AMissingFileIsNamed) {
  EXPECT_NE(complaint([] {
              host::Component::load("Z:\\nowhere\\Pelorin.dll");
            }).find("Z:\\nowhere\\Pelorin.dll"),
            std::string::npos);
}

TEST(LoadingTheComponent, AFileThatIsNoLibraryIsNamed) {
  const TemporaryFile file("no.dll", "this is text");
  EXPECT_NE(complaint([&] { host::Component::load(file.path()); }).find("cannot be loaded"),
            std::string::npos);
}

TEST(LoadingTheComponent, ALibraryThatIsNoComponentIsNamed) {
  EXPECT_NE(complaint([] {
              host::Component::load("C:\\windows\\system32\\version.dll");
            }).find("is no component"),
            std::string::npos);
}

host::Options over(const std::string& file) {
  host::Options options;
  options.database = file;
  return options;
}

TEST(OpeningADatabase, AFileThatIsNoneIsNamedAndStaysAsItWas) {
  const TemporaryFile file("letter.site", "Dear Sir or Madam, this is no database at all.");
  const std::string text = complaint([&] {
    host::DataSource::open(over(file.path()), std::make_shared<host::StatementLog>(),
                           host::connectOdbc);
  });
  EXPECT_NE(text, "none");
  EXPECT_EQ(file.content(), "Dear Sir or Madam, this is no database at all.");
}

TEST(OpeningADatabase, AMissingFileIsMadeAndFoundAgainWithItsAuditLog) {
  const TemporaryFile file("fresh.site");
  {
    const host::DataSource made = host::DataSource::open(
        over(file.path()), std::make_shared<host::StatementLog>(), host::connectOdbc);
    AuditRecord record;
    record.operation = "Add";
    made.audit().add(record);
  }
  const host::DataSource again = host::DataSource::open(
      over(file.path()), std::make_shared<host::StatementLog>(), host::connectOdbc);
  ASSERT_EQ(again.audit().records().size(), 1U);
  EXPECT_EQ(again.audit().records()[0].operation, "Add");
}

TEST(OpeningADatabase, AnOdbcSourceThatIsNotThereIsAClearError) {
  host::Options options;
  options.source = host::Source::OdbcDataSource;
  options.connectionString = "DSN=pelorin-has-no-such-source";
  EXPECT_NE(complaint([&] {
              host::DataSource::open(options, std::make_shared<host::StatementLog>(),
                                     host::connectOdbc);
            }),
            "none");
}

}  // namespace
}  // namespace pelorin::test
